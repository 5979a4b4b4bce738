// SPDX-License-Identifier: MIT
#include "graphics/look/Look.h"

#include <gtest/gtest.h>

namespace grisal::graphics
{

TEST(LookTest, OnlyTheMixerIsOnInitially)
{
    EXPECT_EQ(Look().enabled, EnabledFilters());
    EXPECT_EQ(Look().enabled.count(), 1);
}

TEST(LookTest, ParametersContainTheSettingsOfEveryFilter)
{
    Look look;
    look.mixer.weights = {0.5F, 0.25F, 0.125F};
    look.toneCurve = {{{0, 1}, {1, 0.5F}}, CurveKind::Straight};
    look.grainStrength = {{{0, 1}, {0.75F, 0.75F}}, CurveKind::Straight};
    look.grainRadius = 2.5F;
    look.splitTone.weight = 1.25F;
    look.vignette.shape.radius = 7;

    const FilterParameters parameters = look.parameters();

    EXPECT_EQ(parameters.get<MixerFilter>(), look.mixer);
    EXPECT_EQ(parameters.get<CurveFilter>().curve.size(), 256);
    EXPECT_FLOAT_EQ(parameters.get<CurveFilter>().curve[128], 0.25F);
    EXPECT_EQ(parameters.get<GrainFilter>().weights, QVector<float>(256, 0.25F));
    EXPECT_EQ(parameters.get<GrainFilter>().radius, 2.5F);
    EXPECT_EQ(parameters.get<HalfToneFilter>(), look.splitTone);
    EXPECT_EQ(parameters.get<VignetteFilter>(), look.vignette);
}

TEST(LookTest, KindOfACurveSelectsItsSamples)
{
    Curve curve = CurveFilterParameters::defaultCurve();
    curve.points.ys[1] = 0.25F;

    EXPECT_EQ(curve.sample(), smoothCurve(curve.points, 256));
    curve.kind = CurveKind::Straight;
    EXPECT_EQ(curve.sample(), linearCurve(curve.points, 256));
    EXPECT_EQ(curve.sample(7).size(), 7);
}

} // namespace grisal::graphics
