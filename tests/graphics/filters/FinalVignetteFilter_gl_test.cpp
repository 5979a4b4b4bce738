// SPDX-License-Identifier: MIT
#include "graphics/filters/FinalVignetteFilter.h"

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

using graphics::FinalVignetteFilter;
using reference::Vignette;

class FinalVignetteFilterTest : public GlTest
{
};

/// The mask for an image of width x height, four components.
FloatPixels maskOf(const Vignette &vignette, int width, int height)
{
    FinalVignetteFilter filter;
    filter.parameters = {{vignette.x, vignette.y, 0}, vignette.strength, vignette.radius};
    return runFilter(filter, FloatPixels(width, height));
}

/// The same computed by the formula, (v, v, v, 0) in every pixel.
FloatPixels expectedMask(const Vignette &vignette, int width, int height)
{
    FloatPixels mask(width, height, 4);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const float v =
                reference::vignetteAt(vignette, static_cast<float>(width), static_cast<float>(height), x, y);
            mask.at(x, y, 0) = mask.at(x, y, 1) = mask.at(x, y, 2) = v;
        }
    }
    return mask;
}

} // namespace

TEST_F(FinalVignetteFilterTest, IsCentredAtTheFirstPixelAndDisabledInitially)
{
    const FinalVignetteFilter filter;

    EXPECT_EQ(filter.getName(), "FinalVignetteFilter");
    EXPECT_EQ(filter.parameters.center.x, 0);
    EXPECT_EQ(filter.parameters.center.y, 0);
    EXPECT_EQ(filter.parameters.center.z, 0);
    EXPECT_EQ(filter.width, 0);
    EXPECT_EQ(filter.height, 0);
    EXPECT_FALSE(filter.enabled);
}

TEST_F(FinalVignetteFilterTest, ProgramIsNamedFinalBWVignette)
{
    const FinalVignetteFilter filter;

    EXPECT_EQ(filter.program().name, "FinalBWVignette");
}

// The uniforms of the vignette without its two textures. The program has neither MaxPixel nor the three sizes of the
// noise, and it does not use the size of the image.
TEST_F(FinalVignetteFilterTest, SendsItsUniformsInOrder)
{
    FinalVignetteFilter filter;
    filter.parameters = {{30, 80, 7}, 70, 40};
    filter.maxWidth = 200;
    filter.maxHeight = 90;
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
                                                         {"Strength", {70}}}));
    EXPECT_EQ(recorder.programs(), std::vector<GLuint>{filter.program().program});
}

// 100 x 100, centre (50.5, 50.5), the centre of a pixel: 0.5 * d / 100.
TEST_F(FinalVignetteFilterTest, MaskIsProportionalToTheDistanceFromTheCentre)
{
    const FloatPixels mask = maskOf({50.5F, 50.5F, 50, 100}, 100, 100);

    EXPECT_NEAR(mask.at(50, 50, 0), 0, 1e-6);
    EXPECT_NEAR(mask.at(90, 50, 0), 0.2, 1e-6);
    EXPECT_NEAR(mask.at(50, 0, 0), 0.25, 1e-6);
    EXPECT_NEAR(mask.at(50 - 30, 50 + 40, 0), 0.25, 1e-6);
}

TEST_F(FinalVignetteFilterTest, MaskIsZeroWithoutStrength)
{
    const FloatPixels mask = maskOf({50, 50, 0, 100}, 13, 7);

    EXPECT_TRUE(picturesNear("mask-empty", mask, FloatPixels(13, 7, 4)));
}

TEST_F(FinalVignetteFilterTest, FollowsTheFormulaAlsoAboveOne)
{
    constexpr Vignette offCentre{30, 80, 90, 25};

    const FloatPixels mask = maskOf(offCentre, 67, 41);

    EXPECT_GT(mask.at(66, 0, 0), 1.0F);
    EXPECT_TRUE(picturesNear("mask-floats", mask, expectedMask(offCentre, 67, 41), {2e-6, 0}));
}

TEST_F(FinalVignetteFilterTest, DependsOnlyOnTheSizeOfThePass)
{
    FinalVignetteFilter filter;
    filter.parameters = {{30, 80, 0}, 90, 25};
    filter.maxWidth = 1000;
    filter.maxHeight = 3;

    const FloatPixels mask = runFilter(filter, FloatPixels(67, 41));

    EXPECT_TRUE(picturesNear("mask-size", mask, expectedMask({30, 80, 90, 25}, 67, 41), {2e-6, 0}));
}

TEST_F(FinalVignetteFilterTest, PartEqualsTheSameAreaOfTheWhole)
{
    FinalVignetteFilter filter;
    filter.parameters = {{30, 80, 0}, 90, 25};
    const FloatPixels whole = runFilter(filter, FloatPixels(67, 41));
    const graphics::RenderTarget target(20, 11, GL_RED, GL_R32F, GL_FLOAT);

    filter.applyPart(47, 30, 20, 11, target.record());

    expectStateAfterPass();
    FloatPixels part(20, 11, 1);
    graphics::readPixels(target.record(), 20, 11, GL_RED, GL_FLOAT, part.values.data());
    FloatPixels expected(20, 11, 1);
    for (int y = 0; y < part.height; ++y) {
        for (int x = 0; x < part.width; ++x) {
            expected.at(x, y, 0) = whole.at(47 + x, 30 + y, 0);
        }
    }
    EXPECT_TRUE(picturesNear("mask-part", part, expected, {1e-6, 0}));
}

TEST_F(FinalVignetteFilterTest, DrawingAPartKeepsTheParameters)
{
    FinalVignetteFilter filter;
    filter.parameters = {{30, 80, 0}, 90, 25};
    const FloatPixels before = runFilter(filter, FloatPixels(67, 41));
    const graphics::RenderTarget target(20, 11, GL_RED, GL_R32F, GL_FLOAT);

    filter.applyPart(47, 30, 20, 11, target.record());

    EXPECT_EQ(filter.parameters.center.x, 30);
    EXPECT_EQ(filter.parameters.center.y, 80);
    EXPECT_TRUE(picturesNear("mask-after-part", runFilter(filter, FloatPixels(67, 41)), before));
}

TEST_F(FinalVignetteFilterTest, IgnoresTheSource)
{
    FinalVignetteFilter filter;
    filter.parameters = {{30, 80, 0}, 90, 25};

    const FloatPixels mask = runFilter(filter, reference::asFloats(rampPicture<std::uint8_t>(67, 41)));

    EXPECT_TRUE(picturesNear("mask-source", mask, expectedMask({30, 80, 90, 25}, 67, 41), {2e-6, 0}));
}

TEST_F(FinalVignetteFilterTest, LeavesNothingBound)
{
    maskOf({30, 80, 90, 25}, 3, 2);

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
