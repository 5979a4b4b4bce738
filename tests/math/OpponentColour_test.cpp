// SPDX-License-Identifier: MIT
#include "math/OpponentColour.h"

#include <gtest/gtest.h>

namespace
{

using namespace grisal::math;

TEST(OpponentColour, MeanWeightsAllChannelsEqually)
{
    EXPECT_FLOAT_EQ(meanOf({30, 60, 90}), 60);
    EXPECT_FLOAT_EQ(meanOf({85, 85, 85}), 85);
}

TEST(OpponentColour, WeightsAreClamped)
{
    EXPECT_FLOAT_EQ(clampedWeight(600), 512);
    EXPECT_FLOAT_EQ(clampedWeight(-600), -512);
    EXPECT_FLOAT_EQ(clampedWeight(511.5F), 511.5F);
}

TEST(OpponentColour, ShiftChangesAllChannelsEqually)
{
    const ColorRGB<float> shifted = shiftedToSum({77, 150, 28}, 300);
    // The result is exactly 43, not 42.99999, so that truncation to an integer does not give 42.
    EXPECT_EQ(static_cast<int>(shifted.r), 92);
    EXPECT_EQ(static_cast<int>(shifted.g), 165);
    EXPECT_EQ(static_cast<int>(shifted.b), 43);
}

TEST(OpponentColour, ShiftToTheSameSumChangesNothing)
{
    const ColorRGB<float> shifted = shiftedToSum({77, 150, 28}, 255);
    EXPECT_NEAR(shifted.r, 77, 1e-4);
    EXPECT_NEAR(shifted.g, 150, 1e-4);
    EXPECT_NEAR(shifted.b, 28, 1e-4);
}

TEST(OpponentColour, WeightsAreComputedFromLevelAndChroma)
{
    const ColorRGB<float> weights = weightsAt(60, 30, -30);
    EXPECT_FLOAT_EQ(weights.r, 30);
    EXPECT_NEAR(weights.g, 60, 1e-4);
    EXPECT_FLOAT_EQ(weights.b, 90);
}

TEST(OpponentColour, WeightsFromLevelAndChromaAreClamped)
{
    const ColorRGB<float> weights = weightsAt(85, 682, 515);
    EXPECT_EQ(weights.r, 512);
    EXPECT_EQ(weights.b, 512);
    EXPECT_EQ(weights.g, -512);
}

TEST(OpponentColour, GreyShiftedToAMeanEqualsTheMean)
{
    const ColorRGB<float> shifted = shiftedToMean({100, 100, 100}, 200);
    EXPECT_EQ(static_cast<int>(shifted.r), 200);
    EXPECT_EQ(static_cast<int>(shifted.g), 200);
    EXPECT_EQ(static_cast<int>(shifted.b), 200);
}

TEST(OpponentColour, GreenCompensatesForClampedChannels)
{
    const ColorRGB<float> shifted = shiftedToSum({511, -300, -200}, 511);
    EXPECT_FLOAT_EQ(shifted.r, 512);
    EXPECT_NEAR(shifted.r + shifted.g + shifted.b, 511, 1e-2);
}

// With three equal thirds this mean would be 0. The third of green is slightly larger; saved images depend on it.
TEST(OpponentColour, MeanWeightsGreenSlightlyMore)
{
    EXPECT_NEAR(meanOf({-100, 200, -100}), 2e-10, 1e-12);
}

// 3.00000036 is half way between two floats; the third of green determines the rounding.
TEST(OpponentColour, GreenIsComputedWithItsOwnThird)
{
    EXPECT_EQ(weightsAt(1.00000012F, -1.00000012F, -1.00000012F).g, 3.00000024F);
}

// 10 - 60 + 50: with three equal thirds a mean just below 60 would leave +6e-11.
TEST(OpponentColour, ShiftUsesTheMeanThatWeightsGreenMore)
{
    EXPECT_NEAR(shiftedToMean({10, 110, 60}, 50).r, -5e-11, 1e-12);
    EXPECT_NEAR(shiftedToSum({10, 110, 60}, 150).r, -5e-11, 1e-12);
}

} // namespace
