// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/FilterDeclaration.h"
#include "graphics/look/VignetteParameters.h"

namespace grisal::graphics
{

struct VignetteFilterParameters {
    VignetteParameters shape{{50, 50, 0}, 50, 50};
    bool extraBlur = false; ///< stored but unused

    bool operator==(const VignetteFilterParameters &) const = default;
    static const FilterDeclaration<VignetteFilterParameters> &declaration();
};

inline const FilterDeclaration<VignetteFilterParameters> &VignetteFilterParameters::declaration()
{
    using Parameters = VignetteFilterParameters;
    static const FilterDeclaration<Parameters> declared{
        .name = "VignetteFilter",
        .dependsOnPosition = true,
        .parameters = {
            {"x", "%", 0, 99, std::nullopt, [](Parameters &p) { return std::span(&p.shape.center.x, 1); }},
            {"y", "%", 0, 99, std::nullopt, [](Parameters &p) { return std::span(&p.shape.center.y, 1); }},
            {"radius", "%", 0, 99, std::nullopt, [](Parameters &p) { return std::span(&p.shape.radius, 1); }},
            {"strength", "%", 0, 99, 0.0F, [](Parameters &p) { return std::span(&p.shape.strength, 1); }}}};
    return declared;
}

} // namespace grisal::graphics
