// SPDX-License-Identifier: MIT
#include "graphics/filters/GaussianBlurFilter.h"

#include "tests/support/FilterRun.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferencePictures.h"
#include "tests/support/UniformRecorder.h"

#include <array>
#include <numeric>

namespace grisal::test
{

namespace
{

using graphics::GaussianBlurFilter;
using reference::blurredAlong;
using reference::blurWeights;

class GaussianBlurFilterTest : public GlTest
{
};

/// exp(-x * x / 0.5705) / 1.348363 for x = 0, 1, 2: the taps at a radius of 0.5.
constexpr std::array<float, 3> halfPixelTaps{0.7416404F, 0.1285112F, 0.0006686F};

/// Allowed error of the exponential function and of the sums; 3e-7 with llvmpipe.
constexpr double exponential = 1e-6;

FloatPixels blurred(const FloatPixels &picture, float radius)
{
    GaussianBlurFilter filter(radius, 1, picture.width, picture.height, GL_RGBA32F, GL_RGBA, GL_FLOAT);
    filter.radius = radius;
    return reference::withoutAlpha(runFilter(filter, picture));
}

BytePixels blurred(const BytePixels &picture, float radius)
{
    GaussianBlurFilter filter(radius, 1, picture.width, picture.height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
    filter.radius = radius;
    return runFilter(filter, picture);
}

FloatPixels expectedOf(const FloatPixels &picture, float radius)
{
    const std::vector<float> weights = blurWeights(radius);
    return blurredAlong(blurredAlong(picture, weights, true), weights, false);
}

/// A black image with one white pixel.
FloatPixels singleDot(int width, int height, int x, int y)
{
    FloatPixels picture(width, height);
    for (int c = 0; c < 3; ++c) {
        picture.at(x, y, c) = 1;
    }
    return picture;
}

double meanOf(const FloatPixels &picture)
{
    return std::accumulate(picture.values.begin(), picture.values.end(), 0.0) /
           static_cast<double>(picture.values.size());
}

} // namespace

TEST_F(GaussianBlurFilterTest, HasTheConstructorArgumentsAndNoRadiusInitially)
{
    const GaussianBlurFilter filter(2.5F, 64, 12, 8, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);

    EXPECT_EQ(filter.getName(), "GaussianBlurFilter");
    EXPECT_EQ(filter.sigma, 2.5F);
    EXPECT_EQ(filter.scale, 64.0F);
    EXPECT_EQ(filter.radius, 0.0F);
    EXPECT_EQ(filter.width, 12);
    EXPECT_EQ(filter.height, 8);
    EXPECT_FALSE(filter.enabled);
}

// The programs do not read Sigma.
TEST_F(GaussianBlurFilterTest, SendsItsUniformsInOrderAlongXFirst)
{
    GaussianBlurFilter filter(2.5F, 64, 5, 3, GL_RGBA32F, GL_RGBA, GL_FLOAT);
    filter.radius = 1.25F;
    const UniformRecorder recorder;

    runFilter(filter, FloatPixels(5, 3));

    EXPECT_EQ(recorder.sent(), (std::vector<SentUniform>{{"Width", {5}},
                                                         {"Height", {3}},
                                                         {"Sigma", {2.5F}},
                                                         {"Radius", {1.25F}},
                                                         {"MainTexture", {0}},
                                                         {"Width", {5}},
                                                         {"Height", {3}},
                                                         {"Sigma", {2.5F}},
                                                         {"Radius", {1.25F}},
                                                         {"MainTexture", {0}}}));
    EXPECT_EQ(recorder.programs(), (std::vector<GLuint>{filter.alongX().program, filter.alongY().program}));
}

TEST_F(GaussianBlurFilterTest, RadiusOfHalfAPixelUsesFiveTapsInEachDirection)
{
    const FloatPixels result = blurred(singleDot(11, 9, 5, 4), 0.5F);

    for (int away = 0; away < 3; ++away) {
        const float expected = halfPixelTaps[0] * halfPixelTaps[static_cast<std::size_t>(away)];
        EXPECT_NEAR(result.at(5 + away, 4, 0), expected, exponential) << away;
        EXPECT_NEAR(result.at(5 - away, 4, 0), expected, exponential) << away;
        EXPECT_NEAR(result.at(5, 4 + away, 0), expected, exponential) << away;
        EXPECT_NEAR(result.at(5, 4 - away, 0), expected, exponential) << away;
    }
    EXPECT_EQ(result.at(8, 4, 0), 0);
    EXPECT_EQ(result.at(2, 4, 0), 0);
    EXPECT_EQ(result.at(5, 7, 0), 0);
    EXPECT_EQ(result.at(5, 1, 0), 0);
}

TEST_F(GaussianBlurFilterTest, FractionalRadiusRoundsTheTapsUp)
{
    const FloatPixels result = blurred(singleDot(15, 1, 7, 0), 1.25F);

    EXPECT_GT(result.at(7 + 4, 0, 0), 0);
    EXPECT_GT(result.at(7 - 4, 0, 0), 0);
    EXPECT_EQ(result.at(7 + 5, 0, 0), 0);
    EXPECT_EQ(result.at(7 - 5, 0, 0), 0);
}

TEST_F(GaussianBlurFilterTest, RadiusOfZeroOrLessCopies)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(37, 23));

    EXPECT_TRUE(picturesNear("blur-none", blurred(ramp, 0), ramp));
    EXPECT_TRUE(picturesNear("blur-negative", blurred(ramp, -1), ramp));
}

TEST_F(GaussianBlurFilterTest, RadiusOfZeroCopiesBytesExactly)
{
    const BytePixels ramp = rampPicture<std::uint8_t>(37, 23);

    EXPECT_TRUE(picturesNear("blur-none-bytes", blurred(ramp, 0), ramp));
}

// A dot in the corner: the parts beyond the first column and row are mirrored back.
TEST_F(GaussianBlurFilterTest, FirstRowAndColumnAreMirrored)
{
    const FloatPixels result = blurred(singleDot(9, 7, 0, 0), 0.5F);

    const auto &[w0, w1, w2] = halfPixelTaps;
    EXPECT_NEAR(result.at(0, 0, 0), (w0 + w1) * (w0 + w1), exponential);
    EXPECT_NEAR(result.at(1, 0, 0), (w1 + w2) * (w0 + w1), exponential);
    EXPECT_NEAR(result.at(0, 1, 0), (w0 + w1) * (w1 + w2), exponential);
}

TEST_F(GaussianBlurFilterTest, LastRowAndColumnAreMirrored)
{
    const FloatPixels result = blurred(singleDot(9, 7, 8, 6), 0.5F);

    const auto &[w0, w1, w2] = halfPixelTaps;
    EXPECT_NEAR(result.at(8, 6, 0), (w0 + w1) * (w0 + w1), exponential);
    EXPECT_NEAR(result.at(7, 6, 0), (w1 + w2) * (w0 + w1), exponential);
    EXPECT_NEAR(result.at(8, 5, 0), (w0 + w1) * (w1 + w2), exponential);
}

// The names are crossed on purpose: the programs have always been listed under these names.
TEST_F(GaussianBlurFilterTest, LabelsAreCrossed)
{
    const GaussianBlurFilter filter(1, 1, 4, 4, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
    EXPECT_EQ(filter.alongX().name, "VerticalBlurFilter");
    EXPECT_EQ(filter.alongY().name, "HorizontalBlurFilter");
}

TEST_F(GaussianBlurFilterTest, KeepsTheMean)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(37, 23));

    for (const float radius : {0.5F, 2.3F, 6.0F}) {
        EXPECT_NEAR(meanOf(blurred(ramp, radius)), meanOf(ramp), 1e-5) << radius;
    }
}

TEST_F(GaussianBlurFilterTest, FloatsFollowTheFormula)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(37, 23));

    const FloatPixels result = blurred(ramp, 2.3F);

    EXPECT_TRUE(picturesNear("blur-floats", result, expectedOf(ramp, 2.3F), {exponential, 0}));
}

// 13 taps over 3 x 2 pixels: mirrored more than once.
TEST_F(GaussianBlurFilterTest, ImageSmallerThanTheKernelFollowsTheFormula)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(3, 2));

    EXPECT_TRUE(picturesNear("blur-small", blurred(ramp, 3), expectedOf(ramp, 3), {exponential, 0}));
}

// The result of the first pass is rounded to bytes, too. Sums half way between two levels may differ by one level;
// none does with llvmpipe.
TEST_F(GaussianBlurFilterTest, BytesFollowTheFormula)
{
    const BytePixels ramp = rampPicture<std::uint8_t>(37, 23);
    const std::vector<float> weights = blurWeights(1.5F);
    const BytePixels between = reference::asBytes(blurredAlong(reference::asFloats(ramp), weights, true));
    const BytePixels expected = reference::asBytes(blurredAlong(reference::asFloats(between), weights, false));

    EXPECT_TRUE(picturesNear("blur-bytes", blurred(ramp, 1.5F), expected, {1, 0.001}));
}

TEST_F(GaussianBlurFilterTest, SigmaAndScaleDoNotAffectTheResult)
{
    const FloatPixels ramp = reference::asFloats(rampPicture<std::uint8_t>(37, 23));
    GaussianBlurFilter filter(1, 1, 37, 23, GL_RGBA32F, GL_RGBA, GL_FLOAT);
    filter.radius = 1.5F;
    const FloatPixels before = runFilter(filter, ramp);

    filter.sigma = 9;
    filter.scale = 9;

    EXPECT_TRUE(picturesNear("blur-sigma", runFilter(filter, ramp), before));
}

TEST_F(GaussianBlurFilterTest, LeavesNothingBound)
{
    blurred(FloatPixels(3, 2), 1);

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
