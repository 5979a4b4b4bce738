// SPDX-License-Identifier: MIT
#include "ui/frames/VignetteShape.h"

#include "tests/support/ReferenceFilters.h"

#include <QColor>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

namespace reference = grisal::test::reference;

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

TEST(VignetteShape, ToleranceIsRelativeToTheLargerValue)
{
    EXPECT_TRUE(nearlyEqualFractions(0.5F, 0.5F));
    EXPECT_TRUE(nearlyEqualFractions(0, 0));
    EXPECT_TRUE(nearlyEqualFractions(0.5F, 0.500004F));
    EXPECT_TRUE(nearlyEqualFractions(0.500004F, 0.5F));
    EXPECT_FALSE(nearlyEqualFractions(0.5F, 0.500006F));
    EXPECT_FALSE(nearlyEqualFractions(0.500006F, 0.5F));
    EXPECT_FALSE(nearlyEqualFractions(0, 1e-30F));
    EXPECT_FALSE(nearlyEqualFractions(-0.5F, 0.5F));
    // 1e-5 of the smaller one would be less than this difference, 1e-5 of the larger one is more.
    EXPECT_TRUE(nearlyEqualFractions(100000, 99999.0F));
    EXPECT_FALSE(nearlyEqualFractions(100000, 99998.9F));
}

TEST(VignetteShape, OnlyADifferentValidFractionIsAccepted)
{
    EXPECT_TRUE(replacesFraction(0.5F, 0));
    EXPECT_TRUE(replacesFraction(0.5F, 1));
    EXPECT_FALSE(replacesFraction(0.5F, -0.001F));
    EXPECT_FALSE(replacesFraction(0.5F, 1.001F));
    EXPECT_FALSE(replacesFraction(0.5F, 0.500004F));
    EXPECT_FALSE(replacesFraction(0.5F, notANumber));
}

TEST(VignetteShape, WheelNotchIsOnePointTwoPercent)
{
    EXPECT_FLOAT_EQ(fractionAfterWheel(0.5F, 120), 0.512F);
    EXPECT_FLOAT_EQ(fractionAfterWheel(0.5F, -120), 0.488F);
    EXPECT_FLOAT_EQ(fractionAfterWheel(0.5F, 1), 0.5001F);
    EXPECT_EQ(fractionAfterWheel(0.5F, 0), 0.5F);
    EXPECT_FLOAT_EQ(fractionAfterWheel(0.995F, 120), 1.007F);
}

TEST(VignetteShape, PercentagesAreTruncatedAndClamped)
{
    EXPECT_EQ(wholePercent(33.99, 0, 99), 33);
    EXPECT_EQ(wholePercent(34, 0, 99), 34);
    EXPECT_EQ(wholePercent(99, 0, 99), 99);
    EXPECT_EQ(wholePercent(100.5, 0, 99), 99);
    EXPECT_EQ(wholePercent(-0.5, 0, 99), 0);
    EXPECT_EQ(wholePercent(-7, 0, 99), 0);
    EXPECT_EQ(wholePercent(1e300, 0, 99), 99);
    EXPECT_EQ(wholePercent(-infinite, 0, 99), 0);
    EXPECT_EQ(wholePercent(infinite, 0, 99), 99);
    EXPECT_EQ(wholePercent(double{notANumber}, 0, 99), 0);
}

// The mean of 3 and 2 is 2.5.
TEST(VignetteShape, RadiusIsRelativeToTheMeanOfWidthAndHeight)
{
    EXPECT_DOUBLE_EQ(vignetteReach(100).width(), 2.5 / 3);
    EXPECT_DOUBLE_EQ(vignetteReach(100).height(), 2.5 / 2);
    EXPECT_DOUBLE_EQ(vignetteReach(40).width(), 1.0 / 3);
    EXPECT_DOUBLE_EQ(vignetteReach(40).height(), 1.0 / 2);
    EXPECT_TRUE(vignetteReach(0).isNull());
}

int differencesFromTheFilter(const reference::Vignette &vignette, int width, int height)
{
    const QImage picture =
        vignettePicture({{vignette.x, vignette.y, 0}, vignette.strength, vignette.radius}, QSize(width, height));
    EXPECT_EQ(picture.size(), QSize(width, height));
    EXPECT_EQ(picture.format(), QImage::Format_Grayscale8);
    constexpr float grey = 160.0F / 255;
    int different = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const reference::Rgb darkened = reference::vignetted(
                {grey, grey, grey}, vignette, static_cast<float>(width), static_cast<float>(height), x, y);
            const float expected = std::max(0.0F, darkened.r * 255);
            different += std::abs(picture.constScanLine(y)[x] - expected) < 0.501F ? 0 : 1;
        }
    }
    return different;
}

TEST(VignettePicture, EqualsTheFilterAppliedToLightGrey)
{
    EXPECT_EQ(differencesFromTheFilter({50, 50, 50, 50}, 150, 100), 0);
    EXPECT_EQ(differencesFromTheFilter({20, 90, 99, 30}, 150, 100), 0);
    EXPECT_EQ(differencesFromTheFilter({99, 0, 30, 1}, 150, 100), 0);
    EXPECT_EQ(differencesFromTheFilter({50, 50, 0, 50}, 150, 100), 0);
}

// The centre of the nearest pixel is half a pixel, 0.05 in units of 3 x 2, beside and below the centre: a distance of
// 0.0707, where 0.9 is reached at 1.25. It is darkened by 0.0509: 0.0039 * 255 * (0.9491 * 160 + 0.0509 * 99.84) is
// 156.1.
TEST(VignettePicture, CentreIsMeasuredFromTheTop)
{
    const QImage picture = vignettePicture({{50, 0, 0}, 90, 50}, QSize(30, 20));
    EXPECT_EQ(qGray(picture.pixel(15, 0)), 156);
    EXPECT_LT(qGray(picture.pixel(15, 19)), 80);
}

// In a frame of twice the height, each row of the image becomes two.
TEST(VignettePicture, KeepsItsProportionsInAnotherFrame)
{
    const QImage wide = vignettePicture({{50, 50, 0}, 60, 40}, QSize(30, 20));
    const QImage square = vignettePicture({{50, 50, 0}, 60, 40}, QSize(30, 40));
    for (int x = 0; x < 30; ++x) {
        EXPECT_NEAR(qGray(wide.pixel(x, 0)), (qGray(square.pixel(x, 0)) + qGray(square.pixel(x, 1))) / 2.0, 1) << x;
    }
}

TEST(VignettePicture, IsUniformWithoutStrength)
{
    QImage plain(31, 21, QImage::Format_Grayscale8);
    plain.fill(QColor(160, 160, 160));
    EXPECT_EQ(vignettePicture({{50, 50, 0}, 0, 50}, QSize(31, 21)), plain);
    EXPECT_EQ(vignettePicture({{50, 50, 0}, 0, 0}, QSize(31, 21)), plain);
}

TEST(VignettePicture, IsBlackWithoutRadius)
{
    QImage black(31, 21, QImage::Format_Grayscale8);
    black.fill(0);
    EXPECT_EQ(vignettePicture({{50, 50, 0}, 50, 0}, QSize(31, 21)), black);
}

// A slider passes its percents in single precision, which makes some of them slightly too small.
TEST(VignetteShape, KeyStepIsShownAsTheNextPercent)
{
    for (int shown = 0; shown < 100; ++shown) {
        const double fraction = static_cast<float>(shown) / 100.0F;
        EXPECT_EQ(wholePercent(fractionAfterStep(fraction, shown, 1) * 100, 0, 100), shown + 1);
        EXPECT_EQ(wholePercent(fractionAfterStep(fraction, shown, 0) * 100, 0, 100), shown);
        EXPECT_EQ(wholePercent(fractionAfterStep(fraction, shown, -1) * 100, 0, 100), std::max(shown - 1, 0));
    }
}

TEST(VignetteShape, StepsStartFromTheShownPercent)
{
    EXPECT_DOUBLE_EQ(fractionAfterStep(0.456, 45, 1), 0.46);
    EXPECT_DOUBLE_EQ(fractionAfterStep(0.456, 45, -1), 0.44);
    EXPECT_DOUBLE_EQ(fractionAfterStep(0.29, 28, 1), 0.29);
    EXPECT_DOUBLE_EQ(fractionAfterStep(1.5, 99, -1), 0.98);
    EXPECT_DOUBLE_EQ(fractionAfterStep(-0.5, 0, 1), 0.01);
}

TEST(VignetteShape, StepStopsAtTheEdge)
{
    EXPECT_EQ(fractionAfterStep(0.995, 99, 1), 1);
    EXPECT_EQ(fractionAfterStep(1.5, 100, 1), 1);
    EXPECT_EQ(fractionAfterStep(0.001, 0, -1), 0);
}

TEST(VignetteShape, StepOfZeroKeepsTheFraction)
{
    EXPECT_EQ(fractionAfterStep(0.456, 45, 0), 0.456);
    EXPECT_EQ(fractionAfterStep(0.29, 28, 0), 0.29);
    EXPECT_EQ(fractionAfterStep(1, 99, 0), 1);
    EXPECT_EQ(fractionAfterStep(1.5, 99, 0), 1.5);
    EXPECT_EQ(fractionAfterStep(-0.5, 0, 0), -0.5);
}

TEST(VignetteShape, RadiusDependsOnTheProportionsOfTheImage)
{
    EXPECT_DOUBLE_EQ(vignetteReach(100, {1000, 3000}).width(), 2);
    EXPECT_DOUBLE_EQ(vignetteReach(100, {1000, 3000}).height(), 2.0 / 3);
    const QImage upright = vignettePicture({{50, 50, 0}, 60, 40}, QSize(20, 30), {2, 3});
    const QImage wide = vignettePicture({{50, 50, 0}, 60, 40}, QSize(30, 20), {3, 2});
    EXPECT_EQ(upright.pixel(10, 0), wide.pixel(0, 10));
    EXPECT_EQ(upright.pixel(0, 15), wide.pixel(15, 0));
}

} // namespace
