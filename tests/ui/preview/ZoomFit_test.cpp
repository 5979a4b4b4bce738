// SPDX-License-Identifier: MIT
#include "ui/preview/ZoomFit.h"

#include <gtest/gtest.h>

namespace
{

using namespace grisal::ui;

TEST(ZoomFit, RatiosAreWidgetPixelsPerImagePixel)
{
    const FitRatios ratios = fitRatios(600, 400, 300, 100);
    EXPECT_FLOAT_EQ(ratios.width, 2);
    EXPECT_FLOAT_EQ(ratios.height, 4);
    EXPECT_FLOAT_EQ(ratios.larger(), 4);
    EXPECT_FLOAT_EQ(ratios.smaller(), 2);
}

TEST(ZoomFit, ImageWithoutSizeHasRatiosOfOne)
{
    const FitRatios ratios = fitRatios(600, 400, 0, 0);
    EXPECT_FLOAT_EQ(ratios.width, 1);
    EXPECT_FLOAT_EQ(ratios.height, 1);
}

TEST(ZoomFit, StepIsOneTwentyFifth)
{
    EXPECT_FLOAT_EQ(zoomedScale(1, 1, 1), 1.04F);
    EXPECT_FLOAT_EQ(zoomedScale(1, -1, 1), 0.96F);
    EXPECT_FLOAT_EQ(zoomedScale(1, 3, 1), 1.12F);
}

// 20 is not a maximum: above it, zooming in depends on the fit, because single pixels are inspected on large screens.
TEST(ZoomFit, ZoomingInContinuesAboveTwenty)
{
    EXPECT_FLOAT_EQ(zoomedScale(19.99F, 1, 1), 20.03F);
    EXPECT_FLOAT_EQ(zoomedScale(20.03F, 1, 1), 20.07F);
}

TEST(ZoomFit, ZoomingInAboveTwentyStopsIfTheFitIsLarger)
{
    EXPECT_FLOAT_EQ(zoomedScale(20.5F, 1, 50), 20.5F);
}

TEST(ZoomFit, ZoomingOutStopsAtHalfTheFit)
{
    EXPECT_FLOAT_EQ(zoomedScale(0.5F, -1, 1), 0.5F);
    EXPECT_FLOAT_EQ(zoomedScale(0.4F, -1, 1), 0.4F);
    EXPECT_FLOAT_EQ(zoomedScale(0.51F, -1, 1), 0.47F);
}

TEST(ZoomFit, ZoomingInIsAllowedBelowHalfTheFit)
{
    EXPECT_FLOAT_EQ(zoomedScale(0.1F, 1, 1), 0.14F);
}

TEST(ZoomFit, PartsOfAWheelNotchAreDropped)
{
    EXPECT_EQ(wheelSteps(120), 1);
    EXPECT_EQ(wheelSteps(-120), -1);
    EXPECT_EQ(wheelSteps(119), 0);
    EXPECT_EQ(wheelSteps(-119), 0);
    EXPECT_EQ(wheelSteps(360), 3);
}

} // namespace
