// SPDX-License-Identifier: MIT
#include "graphics/look/EnabledFilters.h"

#include <gtest/gtest.h>

namespace grisal::graphics
{

TEST(EnabledFiltersTest, OnlyTheMixerIsEnabledInitially)
{
    const EnabledFilters enabled;

    EXPECT_TRUE(enabled.get<MixerFilter>());
    EXPECT_EQ(enabled.count(), 1);
}

TEST(EnabledFiltersTest, FiltersAreEnabledIndependently)
{
    EnabledFilters enabled;

    enabled.get<GrainFilter>() = true;
    enabled.get<MixerFilter>() = false;
    EXPECT_TRUE(enabled.get<GrainFilter>());
    EXPECT_FALSE(enabled.get<MixerFilter>());
    EXPECT_EQ(enabled.count(), 1);

    enabled.get<CurveFilter>() = enabled.get<HalfToneFilter>() = enabled.get<VignetteFilter>() = true;
    EXPECT_EQ(enabled.count(), 4);
}

} // namespace grisal::graphics
