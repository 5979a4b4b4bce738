// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/FilterParameters.h"

#include <limits>
#include <vector>

namespace grisal::test
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// Parameters that all have this value. The grain radius stays finite, because the loop of a blur with infinite radius
/// does not end.
inline graphics::FilterParameters everyParameter(float value)
{
    graphics::FilterParameters parameters;
    parameters.get<graphics::MixerFilter>().weights = parameters.get<graphics::HalfToneFilter>().highlights =
        parameters.get<graphics::HalfToneFilter>().shadows = {value, value, value};
    parameters.get<graphics::CurveFilter>().curve = parameters.get<graphics::GrainFilter>().weights =
        QVector<float>(256, value);
    parameters.get<graphics::VignetteFilter>().shape.center.x =
        parameters.get<graphics::VignetteFilter>().shape.center.y = value;
    parameters.get<graphics::VignetteFilter>().shape.radius =
        parameters.get<graphics::VignetteFilter>().shape.strength = value;
    parameters.get<graphics::HalfToneFilter>().weight = value;
    parameters.get<graphics::GrainFilter>().radius = value == infinity ? 1 : value;
    return parameters;
}

/// Parameters that the panels never send.
inline std::vector<graphics::FilterParameters> invalidParameters()
{
    return {everyParameter(notANumber), everyParameter(infinity), everyParameter(-infinity), everyParameter(-1)};
}

} // namespace grisal::test
