// SPDX-License-Identifier: MIT
#include "graphics/filters/GrainFilter.h"

#include "tests/graphics/filters/GrainNoise.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/UniformRecorder.h"

#include <numeric>

namespace grisal::test
{

namespace
{

using graphics::GrainFilter;
using reference::Rgb;

class GrainFilterTest : public GlTest
{
};

class MeanGreyTest : public GlTest, public testing::WithParamInterface<float>
{
};

const QVector<float> everywhere(256, 1.0F);
const QVector<float> nowhere(256, 0.0F);

/// Weights that differ for every grey and increase with its lightness.
QVector<float> risingWeights()
{
    QVector<float> weights(256);
    for (int i = 0; i < 256; ++i) {
        weights[i] = static_cast<float>(i) / 300 + 0.1F;
    }
    return weights;
}

template <typename Picture>
FloatPixels expectedOf(const Picture &picture, const BytePixels &noise, const QVector<float> &weights)
{
    return reference::eachPixel(picture, [&](int x, int y, Rgb colour) {
        return reference::grain(colour, reference::noiseAt(noise, x, y), weights);
    });
}

/// Copies the values of one image to another where the noise is read exactly between two texels.
void levelBetweenTexels(FloatPixels &picture, const FloatPixels &other)
{
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const bool between = reference::isBetweenNoiseTexels(x) || reference::isBetweenNoiseTexels(y);
            for (int c = 0; between && c < picture.components; ++c) {
                picture.at(x, y, c) = other.at(x, y, c);
            }
        }
    }
}

double meanOf(const BytePixels &picture)
{
    return std::accumulate(picture.values.begin(), picture.values.end(), 0.0) /
           static_cast<double>(picture.values.size());
}

} // namespace

TEST_F(GrainFilterTest, IsDisabledWithoutWeightsBlurAndSizeInitially)
{
    GrainFilter filter;

    EXPECT_EQ(filter.getName(), "GrainFilter");
    EXPECT_EQ(filter.weightsTexture(), 0U);
    EXPECT_EQ(filter.blur(), nullptr);
    EXPECT_EQ(filter.blurredNoise(), nullptr);
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

TEST_F(GrainFilterTest, ProgramHasTheNameOfTheFilter)
{
    const GrainFilter filter;

    EXPECT_EQ(filter.program().name, "GrainFilter");
}

// The program has no MaxPixel and does not use Sigma.
TEST_F(GrainFilterTest, SendsItsUniformsInOrder)
{
    GrainFilter filter;
    filter.setSigma(1.5F);
    filter.setWeights(everywhere);
    runFilter(filter, FloatPixels(5, 3)); // after this the noise is blurred
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(), (std::vector<SentUniform>{{"Width", {5}},
                                                         {"Height", {3}},
                                                         {"Sigma", {1.5F}},
                                                         {"MaxPixel", {1}},
                                                         {"NoiseMap", {1}},
                                                         {"Weights", {2}},
                                                         {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

// The noise map begins with a red of 190: with I = 127.5 it is 0.49725 * (I + 2 * 190 * 0.0039 * I) * 0.0039.
TEST_F(GrainFilterTest, NoiseIsOverlaidInProportionToTheWeight)
{
    GrainFilter filter;
    filter.setSigma(0);
    filter.setWeights(everywhere);
    const FloatPixels grey(1, 1, 3, {0.5F, 0.5F, 0.5F});

    EXPECT_NEAR(runFilter(filter, grey).at(0, 0, 0), 0.6136933, 1e-6);

    filter.setWeights(QVector<float>(256, 0.25F));
    EXPECT_NEAR(runFilter(filter, grey).at(0, 0, 0), 0.5284233, 1e-6);
}

TEST_F(GrainFilterTest, OnlyTheRedChannelOfTheNoiseIsUsed)
{
    GrainFilter filter;
    filter.setSigma(0);
    filter.setWeights(everywhere);

    const FloatPixels result = runFilter(filter, FloatPixels(1, 1, 3, {0.5F, 0.5F, 0.5F}));

    EXPECT_EQ(result.at(0, 0, 1), result.at(0, 0, 0));
    EXPECT_EQ(result.at(0, 0, 2), result.at(0, 0, 0));
}

TEST_F(GrainFilterTest, RedSelectsTheWeight)
{
    GrainFilter filter;
    filter.setSigma(0);
    filter.setWeights({0, 1, 0, 0});

    const BytePixels result = runFilter(filter, BytePixels(2, 1, 3, {80, 200, 200, 200, 80, 80}));

    EXPECT_NE(result.at(0, 0, 1), 200);
    EXPECT_EQ(result.at(1, 0, 1), 80);
}

// The lookup repeats instead of being clamped, so pure white has the grain of black. Saved images depend on it.
TEST_F(GrainFilterTest, WhiteUsesTheWeightOfBlack)
{
    GrainFilter filter;
    filter.setSigma(0);
    const FloatPixels white(1, 1, 3, {1, 1, 1});

    filter.setWeights({0, 1, 1, 1});
    EXPECT_EQ(runFilter(filter, white).at(0, 0, 0), 1.0F);

    filter.setWeights({1, 0, 0, 0});
    EXPECT_NEAR(runFilter(filter, white).at(0, 0, 0), 0.9890302, 1e-6);
}

TEST_F(GrainFilterTest, WeightsOfZeroChangeNothing)
{
    GrainFilter filter;
    filter.setSigma(1.5F);
    filter.setWeights(nowhere);
    const BytePixels ramp = rampPicture<std::uint8_t>(67, 41);

    EXPECT_TRUE(picturesNear("grain-neutral-bytes", runFilter(filter, ramp), ramp));
    const FloatPixels floats = reference::asFloats(ramp);
    EXPECT_TRUE(picturesNear("grain-neutral-floats", reference::withoutAlpha(runFilter(filter, floats)), floats));
}

TEST_F(GrainFilterTest, FloatsFollowTheFormula)
{
    GrainFilter filter;
    filter.setSigma(1.5F);
    filter.setWeights(risingWeights());
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(67, 41));

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, ramp));

    EXPECT_TRUE(picturesNear("grain-floats", result, expectedOf(ramp, noiseOf(filter), risingWeights()), {1e-6, 0}));
}

// Results half way between two levels may differ by one level; none does with llvmpipe.
TEST_F(GrainFilterTest, BytesFollowTheFormula)
{
    GrainFilter filter;
    filter.setSigma(0.5F);
    filter.setWeights(risingWeights());
    const BytePixels ramp = reference::greyRamp();

    const BytePixels expected = reference::asBytes(expectedOf(ramp, noiseOf(filter), risingWeights()));

    EXPECT_TRUE(picturesNear("grain-bytes", runFilter(filter, ramp), expected, {1, 0.001}));
}

TEST_F(GrainFilterTest, NoiseIsMirroredBeyondItsEdgesAlongX)
{
    GrainFilter filter;
    filter.setSigma(0);
    filter.setWeights(everywhere);
    const FloatPixels grey = reference::asFloats(reference::flatGrey(1700, 5, 128));

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, grey));

    FloatPixels expected = expectedOf(grey, bareNoise(), everywhere);
    levelBetweenTexels(expected, result);
    EXPECT_TRUE(picturesNear("grain-mirrored-x", result, expected, {1e-6, 0}));
}

TEST_F(GrainFilterTest, NoiseIsMirroredBeyondItsEdgesAlongY)
{
    GrainFilter filter;
    filter.setSigma(0);
    filter.setWeights(everywhere);
    const FloatPixels grey = reference::asFloats(reference::flatGrey(5, 1700, 128));

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, grey));

    FloatPixels expected = expectedOf(grey, bareNoise(), everywhere);
    levelBetweenTexels(expected, result);
    EXPECT_TRUE(picturesNear("grain-mirrored-y", result, expected, {1e-6, 0}));
}

TEST_F(GrainFilterTest, NewWeightsDeleteTheFormerTexture)
{
    GrainFilter filter;
    filter.setWeights(everywhere);
    const GLuint former = filter.weightsTexture();
    ASSERT_TRUE(glIsTexture(former));

    filter.setWeights(nowhere);

    EXPECT_FALSE(glIsTexture(former));
    EXPECT_TRUE(glIsTexture(filter.weightsTexture()));
}

TEST_F(GrainFilterTest, DestructorDeletesItsTextures)
{
    GLuint weights = 0;
    GLuint noise = 0;
    {
        GrainFilter filter;
        filter.setSigma(1);
        filter.setWeights(everywhere);
        weights = filter.weightsTexture();
        noise = filter.blurredNoise()->record().texture;
    }
    EXPECT_FALSE(glIsTexture(weights));
    EXPECT_FALSE(glIsTexture(noise));
}

// Unlike the other filters, this one leaves its last unit active: the next pass has to select its unit.
TEST_F(GrainFilterTest, LeavesUnitTwoActiveAndNothingBound)
{
    GrainFilter filter;
    filter.setSigma(1);
    filter.setWeights(everywhere);

    runFilter(filter, FloatPixels(3, 2));

    EXPECT_EQ(activeUnit(), 2);
    expectStateAfterPass();
    EXPECT_EQ(bound2D(graphics::unit::extra), 0);
    EXPECT_EQ(bound1D(graphics::unit::weights), 0);
}

TEST_P(MeanGreyTest, OfAFlatImageIsKept)
{
    GrainFilter filter;
    filter.setSigma(GetParam());
    filter.setWeights(everywhere);
    const Rgb middleNoise{0.5F, 0.5F, 0.5F};
    for (const int grey : {16, 64, 128, 192, 239}) {
        const auto level = static_cast<std::uint8_t>(grey);

        const double mean = meanOf(runFilter(filter, reference::flatGrey(512, 512, level)));

        // The result with a noise of uniform middle grey: the constants alone darken by one or two levels.
        const float base = reference::fromByte(level);
        const double expected = reference::tinted(Rgb{base, base, base}, middleNoise).r * 255;
        EXPECT_NEAR(mean, expected, 1.0) << grey;
    }
}

INSTANTIATE_TEST_SUITE_P(Radii, MeanGreyTest, testing::Values(0.0F, 0.5F, 1.5F, 5.0F, 10.0F));

} // namespace grisal::test
