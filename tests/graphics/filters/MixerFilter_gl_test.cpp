// SPDX-License-Identifier: MIT
#include "graphics/filters/MixerFilter.h"

#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/UniformRecorder.h"

namespace grisal::test
{

namespace
{

using graphics::MixerFilter;
using reference::Rgb;

class MixerFilterTest : public GlTest
{
};

const FloatPixels redGreenBlueWhite(4, 1, 3, {1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1});

FloatPixels expectedOf(const BytePixels &picture, Rgb weights)
{
    return reference::eachPixel(picture, [=](int, int, Rgb colour) { return reference::mixer(colour, weights); });
}

} // namespace

TEST_F(MixerFilterTest, IsDisabledWithoutWeightsAndSizeInitially)
{
    const MixerFilter filter;

    EXPECT_EQ(filter.getName(), "MixerFilter");
    EXPECT_EQ(filter.weights, (graphics::ColorRGB<float>{0, 0, 0}));
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

TEST_F(MixerFilterTest, ProgramIsNamedBWConversionMixer)
{
    const MixerFilter filter;

    EXPECT_EQ(filter.program().name, "BWConversionMixer");
}

// The program has no MaxPixel.
TEST_F(MixerFilterTest, SendsItsUniformsInOrder)
{
    MixerFilter filter;
    filter.weights = {0.3F, 0.59F, 0.11F};
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(), (std::vector<SentUniform>{{"Width", {5}},
                                                         {"Height", {3}},
                                                         {"MaxPixel", {1}},
                                                         {"Weights", {0.3F, 0.59F, 0.11F}},
                                                         {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

TEST_F(MixerFilterTest, EachChannelIsMultipliedByItsWeight)
{
    MixerFilter filter;
    filter.weights = {0.3F, 0.59F, 0.11F};

    const FloatPixels result = runFilter(filter, redGreenBlueWhite);

    const std::vector<float> greys{0.3F, 0.59F, 0.11F, 1.0F};
    for (int x = 0; x < 4; ++x) {
        for (int c = 0; c < 3; ++c) {
            EXPECT_NEAR(result.at(x, 0, c), greys[static_cast<std::size_t>(x)], 1e-6) << x << " " << c;
        }
        EXPECT_EQ(result.at(x, 0, 3), 1.0F);
    }
}

TEST_F(MixerFilterTest, WeightsAreNotNormalised)
{
    MixerFilter filter;
    filter.weights = {1, 1, 1};

    EXPECT_EQ(runFilter(filter, redGreenBlueWhite).at(3, 0, 0), 3.0F);
}

TEST_F(MixerFilterTest, ByteImageIsClampedAtWhite)
{
    MixerFilter filter;
    filter.weights = {1, 1, 1};

    const BytePixels result = runFilter(filter, BytePixels(1, 1, 3, {255, 255, 255}));

    EXPECT_EQ(result.values, (std::vector<std::uint8_t>{255, 255, 255}));
}

TEST_F(MixerFilterTest, NegativeWeightsAreClampedAtBlack)
{
    MixerFilter filter;
    filter.weights = {-0.5F, 1, 0};

    const BytePixels result = runFilter(filter, BytePixels(2, 1, 3, {200, 0, 0, 100, 100, 0}));

    EXPECT_EQ(result.values, (std::vector<std::uint8_t>{0, 0, 0, 50, 50, 50}));
}

TEST_F(MixerFilterTest, WeightsWithSumOneKeepEveryGrey)
{
    MixerFilter filter;
    filter.weights = {0.25F, 0.5F, 0.25F};
    const BytePixels greys = reference::greyRamp();

    EXPECT_TRUE(picturesNear("mixer-neutral", runFilter(filter, greys), greys));
}

TEST_F(MixerFilterTest, FloatsFollowTheFormula)
{
    MixerFilter filter;
    filter.weights = {0.7F, -0.3F, 0.45F};
    const BytePixels ramp = rampPicture<std::uint8_t>(67, 41);

    const FloatPixels result = runFilter(filter, reference::asFloats(ramp));

    EXPECT_TRUE(picturesNear("mixer-floats", reference::withoutAlpha(result), expectedOf(ramp, {0.7F, -0.3F, 0.45F}),
                             {1e-6, 0}));
}

// Sums half way between two levels may differ by one level; none does with llvmpipe.
TEST_F(MixerFilterTest, BytesFollowTheFormula)
{
    MixerFilter filter;
    filter.weights = {0.3F, 0.59F, 0.11F};
    const BytePixels ramp = rampPicture<std::uint8_t>(67, 41);

    const BytePixels expected = reference::asBytes(expectedOf(ramp, {0.3F, 0.59F, 0.11F}));

    EXPECT_TRUE(picturesNear("mixer-bytes", runFilter(filter, ramp), expected, {1, 0.001}));
}

TEST_F(MixerFilterTest, LeavesNothingBound)
{
    MixerFilter filter;

    runFilter(filter, redGreenBlueWhite);

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
