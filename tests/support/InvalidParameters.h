// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterParameters.h"

#include <limits>
#include <vector>

namespace grisal::test
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// Parameters that all have this value. The radius of the grain stays finite: the loop of an infinite blur has no end.
inline graphics::FilterParameters everyParameter(float value)
{
    graphics::FilterParameters parameters;
    parameters.mixerWeights = parameters.highlightTint = parameters.shadowTint = {value, value, value};
    parameters.curve = parameters.grainWeights = QVector<float>(256, value);
    parameters.vignetteX = parameters.vignetteY = value;
    parameters.vignetteRadius = parameters.vignetteStrength = value;
    parameters.splitWeight = value;
    parameters.grainRadius = value == infinity ? 1 : value;
    return parameters;
}

/// Parameters that no panel sends.
inline std::vector<graphics::FilterParameters> invalidParameters()
{
    return {everyParameter(notANumber), everyParameter(infinity), everyParameter(-infinity), everyParameter(-1)};
}

} // namespace grisal::test
