// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterSet.h"

#include "tests/support/GlTest.h"

namespace grisal::test
{

namespace
{

using graphics::ColorRGB;
using graphics::FilterParameters;
using graphics::FilterSet;
using graphics::IFilter;

class FilterSetTest : public GlTest
{
};

FilterParameters distinctParameters()
{
    FilterParameters parameters;
    parameters.mixerWeights = {0.1F, 0.2F, 0.3F};
    parameters.curve = {0.25F, 0.75F};
    parameters.vignetteX = 11;
    parameters.vignetteY = 22;
    parameters.vignetteRadius = 33;
    parameters.vignetteStrength = 44;
    parameters.splitWeight = 0.6F;
    parameters.highlightTint = {0.4F, 0.5F, 0.6F};
    parameters.shadowTint = {0.7F, 0.8F, 0.9F};
    parameters.grainWeights = {0.5F, 0.1F};
    parameters.grainRadius = 7;
    return parameters;
}

} // namespace

TEST_F(FilterSetTest, NoFilterIsEnabledAtFirst)
{
    const FilterSet filters;

    for (const IFilter *filter : std::initializer_list<const IFilter *>{
             &filters.mixer, &filters.curve, &filters.vignette, &filters.splitTone, &filters.grain}) {
        EXPECT_FALSE(filter->enabled) << filter->getName();
    }
}

TEST_F(FilterSetTest, TheSizeReachesAllFiveFilters)
{
    FilterSet filters;

    filters.setSize(513, 515);

    for (const IFilter *filter : std::initializer_list<const IFilter *>{
             &filters.mixer, &filters.curve, &filters.vignette, &filters.splitTone, &filters.grain}) {
        EXPECT_EQ(filter->width, 513) << filter->getName();
        EXPECT_EQ(filter->height, 515) << filter->getName();
    }
}

TEST_F(FilterSetTest, ThePictureSizeIsTheVignettesAlone)
{
    FilterSet filters;
    filters.setSize(513, 515);

    filters.setPictureSize(2049, 2055);

    EXPECT_EQ(filters.vignette.maxWidth, 2049);
    EXPECT_EQ(filters.vignette.maxHeight, 2055);
    EXPECT_EQ(filters.vignette.width, 513);
    EXPECT_EQ(filters.vignette.height, 515);
}

TEST_F(FilterSetTest, MixerCurveAndSplitToneGetTheirParameters)
{
    FilterSet filters;

    filters.setParameters(distinctParameters());

    EXPECT_EQ(filters.mixer.weights, (ColorRGB<float>{0.1F, 0.2F, 0.3F}));
    EXPECT_EQ(filters.curve.curve(), (QVector<float>{0.25F, 0.75F}));
    EXPECT_EQ(filters.splitTone.weight, 0.6F);
    EXPECT_EQ(filters.splitTone.firstColor, (ColorRGB<float>{0.4F, 0.5F, 0.6F}));
    EXPECT_EQ(filters.splitTone.secondColor, (ColorRGB<float>{0.7F, 0.8F, 0.9F}));
}

TEST_F(FilterSetTest, TheVignetteGetsItsParameters)
{
    FilterSet filters;
    filters.vignette.parameters.center.z = 9;

    filters.setParameters(distinctParameters());

    EXPECT_EQ(filters.vignette.parameters.center.x, 11);
    EXPECT_EQ(filters.vignette.parameters.center.y, 22);
    EXPECT_EQ(filters.vignette.parameters.center.z, 0);
    EXPECT_EQ(filters.vignette.parameters.radius, 33);
    EXPECT_EQ(filters.vignette.parameters.strength, 44);
}

TEST_F(FilterSetTest, TheGrainGetsItsWeights)
{
    FilterSet filters;

    filters.setParameters(distinctParameters());

    std::vector<float> weights(2);
    glBindTexture(GL_TEXTURE_1D, filters.grain.weightsTexture());
    glGetTexImage(GL_TEXTURE_1D, 0, GL_RED, GL_FLOAT, weights.data());
    glBindTexture(GL_TEXTURE_1D, 0);
    EXPECT_EQ(weights, (std::vector<float>{0.5F, 0.1F}));
}

TEST_F(FilterSetTest, ParametersAloneBlurNoNoise)
{
    FilterSet filters;

    filters.setParameters(distinctParameters());

    EXPECT_EQ(filters.grain.blur(), nullptr);
}

} // namespace grisal::test
