// SPDX-License-Identifier: MIT
// The blurred noise of the grain filter.
#include "tests/graphics/filters/GrainNoise.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"

#include <vector>

namespace grisal::test
{

namespace
{

using graphics::GrainFilter;
using graphics::noiseMapSide;

using GrainNoise = GlTest;

/// Overwrites the blurred noise in order to detect whether it is blurred again.
void spoilNoise(const GrainFilter &filter)
{
    const std::vector<std::uint8_t> black(std::size_t{noiseMapSide} * noiseMapSide * 3);
    glBindTexture(GL_TEXTURE_2D, filter.blurredNoise()->record().texture);
    glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, noiseMapSide, noiseMapSide, GL_RGB, GL_UNSIGNED_BYTE, black.data());
    glBindTexture(GL_TEXTURE_2D, 0);
}

} // namespace

// Sums half way between two levels may differ by one level: 10 of 786432 with llvmpipe.
TEST_F(GrainNoise, NoiseIsBlurredByTheSigma)
{
    GrainFilter filter;
    filter.setSigma(2.5F);

    const std::vector<float> weights = reference::blurWeights(2.5F);
    const BytePixels between =
        reference::asBytes(reference::blurredAlong(reference::asFloats(bareNoise()), weights, true));
    const BytePixels expected =
        reference::asBytes(reference::blurredAlong(reference::asFloats(between), weights, false));
    EXPECT_TRUE(picturesNear("grain-noise", noiseOf(filter), expected, {1, 0.001}));
}

TEST_F(GrainNoise, SigmaOfZeroLeavesTheNoiseUnblurred)
{
    GrainFilter filter;
    filter.setSigma(0);

    EXPECT_TRUE(picturesNear("grain-bare-noise", noiseOf(filter), bareNoise()));
}

TEST_F(GrainNoise, SettingTheSigmaBlursTheNoise)
{
    GrainFilter filter;
    filter.setSigma(0);
    const GLuint texture = filter.blurredNoise()->record().texture;
    const BytePixels bare = readTexture(texture, noiseMapSide, noiseMapSide);

    filter.setSigma(2.5F);

    EXPECT_NE(readTexture(texture, noiseMapSide, noiseMapSide).values, bare.values);
}

TEST_F(GrainNoise, SettingTheSameSigmaDoesNotBlurAgain)
{
    GrainFilter filter;
    filter.setSigma(0);
    spoilNoise(filter);

    filter.setSigma(0);

    EXPECT_EQ(noiseOf(filter).values, BytePixels(noiseMapSide, noiseMapSide).values);
}

TEST_F(GrainNoise, DiscardedNoiseIsBlurredAgainWithTheSameSigma)
{
    GrainFilter filter;
    filter.setSigma(0);
    spoilNoise(filter);

    filter.discardNoise();
    EXPECT_EQ(filter.blur(), nullptr);
    EXPECT_EQ(filter.blurredNoise(), nullptr);
    filter.setSigma(0);

    EXPECT_TRUE(picturesNear("grain-forgotten", noiseOf(filter), bareNoise()));
}

TEST_F(GrainNoise, PassDoesNotBlurTheNoise)
{
    GrainFilter filter;
    filter.setSigma(1);
    filter.setWeights(QVector<float>(256, 1.0F));
    filter.discardNoise();

    runFilter(filter, FloatPixels(3, 2));

    EXPECT_EQ(filter.blurredNoise(), nullptr);
}

TEST_F(GrainNoise, SecondSigmaBlursTheMapWithTheSameBlurAndTarget)
{
    GrainFilter filter;
    filter.setSigma(3);
    const graphics::GaussianBlurFilter *blur = filter.blur();
    const graphics::FramebufferObject target = filter.blurredNoise()->record();

    filter.setSigma(0);

    EXPECT_EQ(filter.blur(), blur);
    EXPECT_EQ(filter.blurredNoise()->record().framebuffer, target.framebuffer);
    EXPECT_EQ(filter.blurredNoise()->record().texture, target.texture);
    EXPECT_TRUE(picturesNear("grain-again", noiseOf(filter), bareNoise()));
}

TEST_F(GrainNoise, SigmaIsTheRadiusOfTheBlur)
{
    GrainFilter filter;

    filter.setSigma(2.5F);

    EXPECT_EQ(filter.sigma(), 2.5F);
    EXPECT_EQ(filter.blur()->sigma, 2.5F);
    EXPECT_EQ(filter.blur()->radius, 2.5F);
    EXPECT_EQ(filter.blur()->scale, 1.0F);
}

} // namespace grisal::test
