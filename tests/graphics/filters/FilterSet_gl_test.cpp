// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterSet.h"

#include "tests/support/GlTest.h"

namespace grisal::test
{

namespace
{

using graphics::ColorRGB;
using graphics::CurveFilter;
using graphics::FilterParameters;
using graphics::FilterSet;
using graphics::GrainFilter;
using graphics::HalfToneFilter;
using graphics::IFilter;
using graphics::MixerFilter;
using graphics::VignetteFilter;

class FilterSetTest : public GlTest
{
};

FilterParameters distinctParameters()
{
    FilterParameters parameters;
    parameters.get<MixerFilter>().weights = {0.1F, 0.2F, 0.3F};
    parameters.get<CurveFilter>().curve = {0.25F, 0.75F};
    parameters.get<VignetteFilter>().shape.center.x = 11;
    parameters.get<VignetteFilter>().shape.center.y = 22;
    parameters.get<VignetteFilter>().shape.radius = 33;
    parameters.get<VignetteFilter>().shape.strength = 44;
    parameters.get<HalfToneFilter>().weight = 0.6F;
    parameters.get<HalfToneFilter>().highlights = {0.4F, 0.5F, 0.6F};
    parameters.get<HalfToneFilter>().shadows = {0.7F, 0.8F, 0.9F};
    parameters.get<GrainFilter>().weights = {0.5F, 0.1F};
    parameters.get<GrainFilter>().radius = 7;
    return parameters;
}

} // namespace

TEST_F(FilterSetTest, NoFilterIsEnabledInitially)
{
    const FilterSet filters;

    for (const IFilter *filter : std::initializer_list<const IFilter *>{
             &filters.get<MixerFilter>(), &filters.get<CurveFilter>(), &filters.get<VignetteFilter>(),
             &filters.get<HalfToneFilter>(), &filters.get<GrainFilter>()}) {
        EXPECT_FALSE(filter->enabled) << filter->getName();
    }
}

TEST_F(FilterSetTest, SizeIsSetOnAllFiveFilters)
{
    FilterSet filters;

    filters.setSize(513, 515);

    for (const IFilter *filter : std::initializer_list<const IFilter *>{
             &filters.get<MixerFilter>(), &filters.get<CurveFilter>(), &filters.get<VignetteFilter>(),
             &filters.get<HalfToneFilter>(), &filters.get<GrainFilter>()}) {
        EXPECT_EQ(filter->width, 513) << filter->getName();
        EXPECT_EQ(filter->height, 515) << filter->getName();
    }
}

TEST_F(FilterSetTest, ImageSizeIsSetOnTheVignetteOnly)
{
    FilterSet filters;
    filters.setSize(513, 515);

    filters.setImageSize(2049, 2055);

    EXPECT_EQ(filters.get<VignetteFilter>().maxWidth, 2049);
    EXPECT_EQ(filters.get<VignetteFilter>().maxHeight, 2055);
    EXPECT_EQ(filters.get<VignetteFilter>().width, 513);
    EXPECT_EQ(filters.get<VignetteFilter>().height, 515);
}

TEST_F(FilterSetTest, MixerCurveAndSplitToneGetTheirParameters)
{
    FilterSet filters;

    filters.setParameters(distinctParameters());

    EXPECT_EQ(filters.get<MixerFilter>().weights, (ColorRGB<float>{0.1F, 0.2F, 0.3F}));
    EXPECT_EQ(filters.get<CurveFilter>().curve(), (QVector<float>{0.25F, 0.75F}));
    EXPECT_EQ(filters.get<HalfToneFilter>().weight, 0.6F);
    EXPECT_EQ(filters.get<HalfToneFilter>().firstColor, (ColorRGB<float>{0.4F, 0.5F, 0.6F}));
    EXPECT_EQ(filters.get<HalfToneFilter>().secondColor, (ColorRGB<float>{0.7F, 0.8F, 0.9F}));
}

TEST_F(FilterSetTest, VignetteGetsItsParameters)
{
    FilterSet filters;
    filters.get<VignetteFilter>().parameters.center.z = 9;

    filters.setParameters(distinctParameters());

    EXPECT_EQ(filters.get<VignetteFilter>().parameters.center.x, 11);
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.center.y, 22);
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.center.z, 0);
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.radius, 33);
    EXPECT_EQ(filters.get<VignetteFilter>().parameters.strength, 44);
}

TEST_F(FilterSetTest, GrainGetsItsWeights)
{
    FilterSet filters;

    filters.setParameters(distinctParameters());

    std::vector<float> weights(2);
    glBindTexture(GL_TEXTURE_1D, filters.get<GrainFilter>().weightsTexture());
    glGetTexImage(GL_TEXTURE_1D, 0, GL_RED, GL_FLOAT, weights.data());
    glBindTexture(GL_TEXTURE_1D, 0);
    EXPECT_EQ(weights, (std::vector<float>{0.5F, 0.1F}));
}

TEST_F(FilterSetTest, ReturnsWhichFiltersAreEnabled)
{
    FilterSet filters;
    filters.resetEnabled();
    EXPECT_EQ(filters.enabled(), graphics::EnabledFilters());

    filters.get<GrainFilter>().enabled = true;
    filters.get<MixerFilter>().enabled = false;
    graphics::EnabledFilters grainOnly;
    grainOnly.get<GrainFilter>() = true;
    grainOnly.get<MixerFilter>() = false;
    EXPECT_EQ(filters.enabled(), grainOnly);
}

TEST_F(FilterSetTest, SettingTheParametersDoesNotBlurTheNoise)
{
    FilterSet filters;

    filters.setParameters(distinctParameters());

    EXPECT_EQ(filters.get<GrainFilter>().blur(), nullptr);
}

} // namespace grisal::test
