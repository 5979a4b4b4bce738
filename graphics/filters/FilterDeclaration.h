// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

namespace grisal::graphics
{

/// A parameter of a filter: one or more floats of the same kind. Its default is what a new Parameters contains.
template <typename Parameters>
struct ParameterDeclaration {
    const char *name;
    const char *unit;
    float lowest;                 ///< of each value
    float highest;                ///< of each value
    std::optional<float> neutral; ///< with this value the filter changes nothing, whatever its other parameters

    /// The parameter's values within the parameters.
    std::span<float> (*values)(Parameters &);
};

/// What the engine has to know of a filter. Every filter of the queues has a type `Parameters`, whose initial values
/// are the defaults, a function `declaration()` and a function setParameters().
template <typename Parameters>
struct FilterDeclaration {
    const char *name;               ///< the name of the filter's class
    bool enabledAtLoad = false;     ///< whether an image that is opened is shown with it
    bool dependsOnPosition = false; ///< in a tile it is replaced by an overlay with its mask
    bool readsNeighbours = false;   ///< it would show a seam at the edge of every tile, which have no border
    std::vector<ParameterDeclaration<Parameters>> parameters;
};

} // namespace grisal::graphics
