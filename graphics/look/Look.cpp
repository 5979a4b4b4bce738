// SPDX-License-Identifier: MIT
#include "graphics/look/Look.h"

#include <type_traits>

namespace grisal::graphics
{

static_assert(
    std::is_same_v<FinalFilters, std::tuple<MixerFilter, CurveFilter, HalfToneFilter, GrainFilter, VignetteFilter>>,
    "a look must contain the settings of every filter");

FilterParameters Look::parameters() const
{
    FilterParameters parameters;
    parameters.get<MixerFilter>() = mixer;
    parameters.get<CurveFilter>() = {toneCurve.sample()};
    parameters.get<GrainFilter>() = {grainStrength.sample(), grainRadius};
    parameters.get<HalfToneFilter>() = splitTone;
    parameters.get<VignetteFilter>() = vignette;
    return parameters;
}

} // namespace grisal::graphics
