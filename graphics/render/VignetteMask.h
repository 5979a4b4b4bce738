// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/VignetteParameters.h"

#include <cstdint>
#include <vector>

namespace grisal::graphics
{

/// The vignette of a whole picture as a mask: width x height values, row after row from the top, each the
/// vignetteValue() of its pixel for this very size. The context must be current.
///
/// `largestSide` is the driver's largest texture side. A mask that does not fit, or for which the driver gives no
/// target, is computed without the GPU, with the same formula, and the log says so.
std::vector<float> makeVignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                                    std::uint32_t largestSide);

} // namespace grisal::graphics
