// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

namespace grisal::graphics
{

/// A parameter of a filter: one or more floats of the same kind. Its default is its value in a default-constructed
/// Parameters object.
template <typename Parameters>
struct ParameterDeclaration {
    const char *name;
    const char *unit;
    float lowest;                 ///< minimum of each value
    float highest;                ///< maximum of each value
    std::optional<float> neutral; ///< at this value the filter has no effect, whatever its other parameters are

    /// Returns the values of this parameter in a Parameters object.
    std::span<float> (*values)(Parameters &);
};

/// Declares the properties of a filter that other code depends on. Every filter in the queues has a type of parameters,
/// whose initial values are the defaults, with a function declaration().
template <typename Parameters>
struct FilterDeclaration {
    const char *name;               ///< the name of the filter's class
    bool enabledAtLoad = false;     ///< whether the filter is enabled when an image is opened
    bool dependsOnPosition = false; ///< in tiles, an OverlayFilter with its mask replaces it
    bool readsNeighbours = false;   ///< it causes seams between tiles, because tiles do not overlap
    std::vector<ParameterDeclaration<Parameters>> parameters;
};

} // namespace grisal::graphics
