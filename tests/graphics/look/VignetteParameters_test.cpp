// SPDX-License-Identifier: MIT
#include "graphics/look/VignetteParameters.h"

#include <gtest/gtest.h>

#include <limits>

namespace grisal::graphics
{

namespace
{

VignetteParameters centred(float strength, float radius)
{
    return {{50, 50, 0}, strength, radius};
}

} // namespace

TEST(VignetteParametersTest, IsCentredAtTheFirstPixelWithoutStrengthInitially)
{
    const VignetteParameters parameters;

    EXPECT_EQ(parameters.center.x, 0);
    EXPECT_EQ(parameters.center.y, 0);
    EXPECT_EQ(parameters.center.z, 0);
    EXPECT_EQ(parameters.strength, 0);
    EXPECT_EQ(parameters.radius, 0);
}

TEST(VignetteParametersTest, GrowsWithTheDistanceFromTheCentre)
{
    EXPECT_FLOAT_EQ(vignetteValue(centred(50, 100), 1000, 1000, 500, 500), 0);
    EXPECT_FLOAT_EQ(vignetteValue(centred(50, 100), 1000, 1000, 500, 1000), 0.25F);
    EXPECT_FLOAT_EQ(vignetteValue(centred(50, 100), 1000, 1000, -500, 500), 0.5F);
}

// A quarter of the mean of 300 and 100 pixels is 50; the distance of (30, 40) from the centre is 50.
TEST(VignetteParametersTest, ReachesItsStrengthAtItsRadius)
{
    EXPECT_FLOAT_EQ(vignetteValue(centred(80, 25), 300, 100, 150 + 30, 50 + 40), 0.8F);
}

TEST(VignetteParametersTest, GrowsBeyondItsRadius)
{
    EXPECT_FLOAT_EQ(vignetteValue(centred(80, 25), 300, 100, 150 + 100, 50), 1.6F);
}

TEST(VignetteParametersTest, IsZeroForStrengthOfZeroOrLess)
{
    EXPECT_EQ(vignetteValue(centred(0, 50), 100, 100, 0, 0), 0);
    EXPECT_EQ(vignetteValue(centred(-10, 50), 100, 100, 0, 0), 0);
}

// A radius of 0 would cause a division by zero if the strength were not tested first.
TEST(VignetteParametersTest, IsZeroForStrengthAndRadiusOfZero)
{
    EXPECT_EQ(vignetteValue(centred(0, 0), 100, 100, 50, 50), 0);
}

TEST(VignetteParametersTest, IsZeroForNaNStrength)
{
    EXPECT_EQ(vignetteValue(centred(std::numeric_limits<float>::quiet_NaN(), 50), 100, 100, 0, 0), 0);
}

TEST(VignetteParametersTest, IsNegativeForNegativeRadius)
{
    EXPECT_FLOAT_EQ(vignetteValue(centred(80, -25), 300, 100, 150 + 30, 50 + 40), -0.8F);
}

} // namespace grisal::graphics
