// SPDX-License-Identifier: MIT
#include "ui/frames/ChromaPlane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>

namespace
{

constexpr ChromaPlane middle{-341, 341, -341, 341};

TEST(ChromaPlane, ModesHaveFixedRanges)
{
    EXPECT_EQ(chromaPlaneOf(0), (ChromaPlane{-170, 170, -170, 170}));
    EXPECT_EQ(chromaPlaneOf(1), middle);
    EXPECT_EQ(chromaPlaneOf(2), (ChromaPlane{-907, 907, -718, 718}));
    EXPECT_FALSE(chromaPlaneOf(3));
    EXPECT_FALSE(chromaPlaneOf(-1));
}

TEST(ChromaPlane, ZeroChromaIsInTheMiddle)
{
    EXPECT_EQ(markerAt(middle, {0, 0}), QPointF(0.5, 0.5));
    EXPECT_EQ(chromaAt(middle, {0.5, 0.5}).u, 0);
    EXPECT_EQ(chromaAt(middle, {0.5, 0.5}).v, 0);
}

TEST(ChromaPlane, BlueIsToTheRightAndRedUpwards)
{
    EXPECT_EQ(markerAt(middle, {341, 341}), QPointF(1, 0));
    EXPECT_EQ(markerAt(middle, {-341, -341}), QPointF(0, 1));
    EXPECT_EQ(chromaAt(middle, {1, 0}).u, 341);
    EXPECT_EQ(chromaAt(middle, {1, 0}).v, 341);
}

TEST(ChromaPlane, PositionsBeyondTheEdgeAreNotClamped)
{
    EXPECT_EQ(chromaAt(middle, {-0.5, 1.5}).u, -682);
    EXPECT_EQ(chromaAt(middle, {-0.5, 1.5}).v, -682);
    EXPECT_EQ(markerAt(middle, {682, 682}), QPointF(1.5, -0.5));
}

TEST(ChromaPlane, MarkerAndChromaConversionsAreInverse)
{
    for (int mode = 0; mode < 3; ++mode) {
        const ChromaPlane plane = *chromaPlaneOf(mode);
        const Chroma chroma = chromaAt(plane, markerAt(plane, {-77.5F, 130.25F}));
        EXPECT_NEAR(chroma.u, -77.5, 1e-3) << mode;
        EXPECT_NEAR(chroma.v, 130.25, 1e-3) << mode;
    }
}

TEST(ChromaPlane, WeightsAreComparedRelativeToTheirSize)
{
    EXPECT_TRUE(nearlyEqualWeights(0, 0));
    EXPECT_FALSE(nearlyEqualWeights(0, 1e-30F));
    EXPECT_TRUE(nearlyEqualWeights(100, 100.0009F));
    EXPECT_FALSE(nearlyEqualWeights(100, 100.002F));
    EXPECT_TRUE(nearlyEqualWeights(-100, -100.0009F));
    EXPECT_FALSE(nearlyEqualWeights(-100, 100));
}

TEST(ChromaPlane, MouseWheelDeltaIsTruncatedToMultiplesOfFive)
{
    EXPECT_FLOAT_EQ(lumaAfterWheel(85, 120), 86.2F);
    EXPECT_FLOAT_EQ(lumaAfterWheel(85, -120), 83.8F);
    EXPECT_EQ(lumaAfterWheel(85, 4), 85);
    EXPECT_EQ(lumaAfterWheel(85, -4), 85);
    EXPECT_FLOAT_EQ(lumaAfterWheel(85, 9), 85.05F);
    EXPECT_FLOAT_EQ(lumaAfterWheel(85, -9), 84.95F);
}

TEST(ChromaPlane, MouseWheelStopsAtTheLimits)
{
    EXPECT_EQ(lumaAfterWheel(511.5F, 120), 512);
    EXPECT_EQ(lumaAfterWheel(-511.5F, -120), -512);
}

/// The colour of the plane for a luma and a chroma, computed by the formula.
QRgb colourAt(float luma, int u, int v)
{
    const auto cut = [](double level) { return static_cast<int>(std::clamp(level, 0.0, 255.0)); };
    const int r = cut(double{luma + static_cast<float>(v)});
    const int b = cut(double{luma + static_cast<float>(u)});
    const int g = cut((luma - 0.333333333333 * r - 0.333333333333 * b) / 0.333333333334 + 0.5);
    return qRgb(r, g, b);
}

struct WheelCase {
    int mode;
    float luma;
};

std::ostream &operator<<(std::ostream &out, const WheelCase &wheel)
{
    return out << "mode " << wheel.mode << ", level " << wheel.luma;
}

class WheelImage : public testing::TestWithParam<WheelCase>
{
};

TEST_P(WheelImage, ShowsTheColourOfEveryPosition)
{
    const ChromaPlane plane = *chromaPlaneOf(GetParam().mode);
    const QImage image = wheelImageOf(plane, GetParam().luma);
    ASSERT_EQ(image.format(), QImage::Format_ARGB32);
    ASSERT_EQ(image.size(), QSize(plane.uMax - plane.uMin, plane.vMax - plane.vMin));
    int different = 0;
    for (int v = plane.vMin; v < plane.vMax; ++v) {
        for (int u = plane.uMin; u < plane.uMax; ++u) {
            const QRgb shown = image.pixel(u - plane.uMin, image.height() - 1 - (v - plane.vMin));
            different += shown == colourAt(GetParam().luma, u, v) ? 0 : 1;
        }
    }
    EXPECT_EQ(different, 0);
}

INSTANTIATE_TEST_SUITE_P(ModesAndLevels, WheelImage,
                         testing::Values(WheelCase{0, 85}, WheelCase{0, 255}, WheelCase{0, -3.7F}, WheelCase{0, 128.6F},
                                         WheelCase{1, 85}, WheelCase{1, 255}, WheelCase{1, -3.7F}, WheelCase{1, 128.6F},
                                         WheelCase{2, 85}, WheelCase{2, 255}, WheelCase{2, -3.7F}, WheelCase{2, 128.6F},
                                         WheelCase{1, 85.5F}));

// The green of these colours is half way between two levels; the third of green determines the rounding.
TEST(WheelImage, RoundsGreenWithItsOwnThird)
{
    const QImage image = wheelImageOf(middle, 85.5F);
    const auto colour = [&image](int u, int v) { return image.pixel(u + 341, 340 - v); };
    EXPECT_EQ(colour(0, 0), qRgb(85, 86, 85));     // 86.5
    EXPECT_EQ(colour(20, 20), qRgb(105, 47, 105)); // 46.5
}

TEST(WheelImage, HasGreyInTheMiddle)
{
    const QImage image = wheelImageOf(middle, 85);
    EXPECT_EQ(image.pixel(341, 340), qRgb(85, 85, 85));
}

TEST(ChromaPlane, MarkerStepsStopAtTheEdgesAndReturnFromBeyond)
{
    EXPECT_DOUBLE_EQ(markerAfterStep(0.5, 0.01), 0.51);
    EXPECT_EQ(markerAfterStep(0.995, 0.01), 1);
    EXPECT_EQ(markerAfterStep(0.005, -0.01), 0);
    EXPECT_EQ(markerAfterStep(1.5, 0.01), 1.5);
    EXPECT_DOUBLE_EQ(markerAfterStep(1.5, -0.01), 1.49);
    EXPECT_EQ(markerAfterStep(-0.5, -0.01), -0.5);
    EXPECT_DOUBLE_EQ(markerAfterStep(-0.5, 0.01), -0.49);
}

TEST(ChromaPlane, HueIsTheNearestSaturatedColour)
{
    EXPECT_EQ(hueOf({0, 0}), Hue::Grey);
    EXPECT_EQ(hueOf({0.4F, -0.4F}), Hue::Grey);
    EXPECT_EQ(hueOf({-0.25F, 0.5F}), Hue::Red);
    EXPECT_EQ(hueOf({-0.5F, 1}), Hue::Red);
    EXPECT_EQ(hueOf({-170, 85}), Hue::Yellow);
    EXPECT_EQ(hueOf({-170, -170}), Hue::Green);
    EXPECT_EQ(hueOf({85, -170}), Hue::Cyan);
    EXPECT_EQ(hueOf({200, -85}), Hue::Blue);
    EXPECT_EQ(hueOf({85, 85}), Hue::Magenta);
    // 77, 150, 28 is at 3/5 of the distance from yellow to green.
    EXPECT_EQ(hueOf({-57, -8}), Hue::Green);
    EXPECT_EQ(hueOf({10, 300}), Hue::Magenta);
    EXPECT_EQ(hueOf({-20, 200}), Hue::Red);
    EXPECT_EQ(hueOf({300, -10}), Hue::Blue);
}

} // namespace
