// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterParameters.h"

#include <gtest/gtest.h>

namespace grisal::graphics
{

TEST(FilterParametersTest, TheMixerTakesAThirdOfEachChannel)
{
    const FilterParameters parameters;

    EXPECT_FLOAT_EQ(parameters.mixerWeights.r, 1.0F / 3);
    EXPECT_FLOAT_EQ(parameters.mixerWeights.g, 1.0F / 3);
    EXPECT_FLOAT_EQ(parameters.mixerWeights.b, 1.0F / 3);
}

TEST(FilterParametersTest, TheCurveIsTheDiagonal)
{
    const FilterParameters parameters;

    ASSERT_EQ(parameters.curve.size(), 256);
    for (int i = 0; i < 256; ++i) {
        EXPECT_FLOAT_EQ(parameters.curve[i], static_cast<float>(i) / 256) << i;
    }
}

TEST(FilterParametersTest, ThereIsNoGrainOfOneAndAHalfPixels)
{
    const FilterParameters parameters;

    EXPECT_EQ(parameters.grainWeights, QVector<float>(256, 0.0F));
    EXPECT_FLOAT_EQ(parameters.grainRadius, 1.5F);
}

TEST(FilterParametersTest, HighlightsAreSandAndShadowsSlate)
{
    const FilterParameters parameters;

    EXPECT_FLOAT_EQ(parameters.splitWeight, 1);
    EXPECT_FLOAT_EQ(parameters.highlightTint.r, 190 / 255.0F);
    EXPECT_FLOAT_EQ(parameters.highlightTint.g, 156 / 255.0F);
    EXPECT_FLOAT_EQ(parameters.highlightTint.b, 54 / 255.0F);
    EXPECT_FLOAT_EQ(parameters.shadowTint.r, 110 / 255.0F);
    EXPECT_FLOAT_EQ(parameters.shadowTint.g, 148 / 255.0F);
    EXPECT_FLOAT_EQ(parameters.shadowTint.b, 198 / 255.0F);
}

TEST(FilterParametersTest, TheVignetteSitsInTheMiddleOfItsScales)
{
    const FilterParameters parameters;

    EXPECT_FLOAT_EQ(parameters.vignetteX, 50);
    EXPECT_FLOAT_EQ(parameters.vignetteY, 50);
    EXPECT_FLOAT_EQ(parameters.vignetteRadius, 50);
    EXPECT_FLOAT_EQ(parameters.vignetteStrength, 50);
    EXPECT_FALSE(parameters.extraBlur);
}

} // namespace grisal::graphics
