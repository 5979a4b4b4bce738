// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteFilter.h"

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

using graphics::VignetteFilter;
using reference::Rgb;
using reference::Vignette;

class VignetteFilterTest : public GlTest
{
};

void set(VignetteFilter &filter, const Vignette &vignette, float pictureWidth, float pictureHeight)
{
    filter.parameters = {{vignette.x, vignette.y, 0}, vignette.strength, vignette.radius};
    filter.maxWidth = pictureWidth;
    filter.maxHeight = pictureHeight;
}

/// The first pixel, a middle grey, of an image of 1000 x 1000.
float firstPixelUnder(const Vignette &vignette)
{
    VignetteFilter filter;
    set(filter, vignette, 1000, 1000);
    return runFilter(filter, FloatPixels(1, 1, 3, {0.5F, 0.5F, 0.5F})).at(0, 0, 0);
}

template <typename Picture>
FloatPixels expectedOf(const Picture &picture, const Vignette &vignette, float pictureWidth, float pictureHeight)
{
    return reference::eachPixel(picture, [=](int x, int y, Rgb colour) {
        return reference::vignetted(colour, vignette, pictureWidth, pictureHeight, x, y);
    });
}

constexpr Vignette offCentre{30, 80, 70, 40};

} // namespace

TEST_F(VignetteFilterTest, IsCentredAtTheFirstPixelAndDisabledInitially)
{
    const VignetteFilter filter;

    EXPECT_EQ(filter.getName(), "VignetteFilter");
    EXPECT_EQ(filter.parameters.center.x, 0);
    EXPECT_EQ(filter.parameters.center.y, 0);
    EXPECT_EQ(filter.parameters.center.z, 0);
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

TEST_F(VignetteFilterTest, ProgramIsNamedBWVignette)
{
    const VignetteFilter filter;

    EXPECT_EQ(filter.program().name, "BWVignette");
}

// The program has neither MaxPixel nor the three sizes of the noise, and it does not use the noise.
TEST_F(VignetteFilterTest, SendsItsUniformsInOrder)
{
    VignetteFilter filter;
    set(filter, {30, 80, 70, 40}, 200, 90);
    filter.parameters.center.z = 7;
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(), (std::vector<SentUniform>{{"Width", {5}},
                                                         {"Height", {3}},
                                                         {"MaxWidth", {200}},
                                                         {"MaxHeight", {90}},
                                                         {"NoiseWidth", {100}},
                                                         {"NoiseHeight", {100}},
                                                         {"NoiseFactor", {1}},
                                                         {"MaxPixel", {1}},
                                                         {"VignetteCenter", {30, 80, 7}},
                                                         {"Radius", {40}},
                                                         {"Strength", {70}},
                                                         {"NoiseMap", {1}},
                                                         {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

// The centre of the first pixel is at (0.5, 0.5), which is 0.05 % of 1000. With a strength of 50 and a radius of 100
// the darkening is 0 there, 0.25 at 500 pixels from the centre and 0.5 at 1000: 0.0039 * (127.5 - v * (127.5
// - 63.39...)).
TEST_F(VignetteFilterTest, DarkensWithTheDistanceFromTheCentre)
{
    EXPECT_NEAR(firstPixelUnder({0.05F, 0.05F, 50, 100}), 0.49725, 1e-6);
    EXPECT_NEAR(firstPixelUnder({50.05F, 0.05F, 50, 100}), 0.4347519, 1e-6);
    EXPECT_NEAR(firstPixelUnder({0.05F, 100.05F, 50, 100}), 0.3722538, 1e-6);
}

TEST_F(VignetteFilterTest, StrengthOfZeroChangesNothing)
{
    const BytePixels ramp = rampPicture<std::uint8_t>(67, 41);
    VignetteFilter filter;
    set(filter, {30, 80, 0, 40}, 67, 41);

    EXPECT_TRUE(picturesNear("vignette-neutral-bytes", runFilter(filter, ramp), ramp));
    const FloatPixels floats = reference::asFloats(ramp);
    EXPECT_TRUE(picturesNear("vignette-neutral-floats", reference::withoutAlpha(runFilter(filter, floats)), floats));
}

TEST_F(VignetteFilterTest, NegativeStrengthChangesNothing)
{
    const BytePixels ramp = rampPicture<std::uint8_t>(67, 41);
    VignetteFilter filter;
    set(filter, {30, 80, -20, 40}, 67, 41);

    EXPECT_TRUE(picturesNear("vignette-negative", runFilter(filter, ramp), ramp));
}

TEST_F(VignetteFilterTest, ZeroPercentIsTheTopRow)
{
    VignetteFilter filter;
    set(filter, {50, 0, 100, 100}, 5, 40);

    const BytePixels result = runFilter(filter, reference::flatGrey(5, 40, 200));

    EXPECT_GT(result.at(2, 0, 0), result.at(2, 39, 0) + 50);
}

TEST_F(VignetteFilterTest, FloatsFollowTheFormula)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(67, 41));
    VignetteFilter filter;
    set(filter, offCentre, 67, 41);

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, ramp));

    EXPECT_TRUE(picturesNear("vignette-floats", result, expectedOf(ramp, offCentre, 67, 41), {2e-6, 0}));
}

// Results half way between two levels may differ by one level; none does with llvmpipe.
TEST_F(VignetteFilterTest, BytesFollowTheFormula)
{
    const BytePixels ramp = reference::greyRamp();
    VignetteFilter filter;
    set(filter, offCentre, 67, 41);

    const BytePixels expected = reference::asBytes(expectedOf(ramp, offCentre, 67, 41));

    EXPECT_TRUE(picturesNear("vignette-bytes", runFilter(filter, ramp), expected, {1, 0.001}));
}

TEST_F(VignetteFilterTest, DependsOnTheSizeOfTheWholeImage)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(67, 41));
    VignetteFilter filter;
    set(filter, offCentre, 200, 90);

    const FloatPixels result = reference::withoutAlpha(runFilter(filter, ramp));

    EXPECT_TRUE(picturesNear("vignette-part", result, expectedOf(ramp, offCentre, 200, 90), {2e-6, 0}));
}

TEST_F(VignetteFilterTest, LeavesNothingBound)
{
    VignetteFilter filter;
    set(filter, offCentre, 1, 1);

    runFilter(filter, FloatPixels(1, 1));

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
    // The program does not use the noise, so it is not bound.
    EXPECT_EQ(bound2D(graphics::unit::extra), 0);
}

} // namespace grisal::test
