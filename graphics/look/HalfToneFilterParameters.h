// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/ColorRGB.h"
#include "graphics/look/FilterDeclaration.h"

namespace grisal::graphics
{

struct HalfToneFilterParameters {
    float weight = 1;                                                    ///< share of the highlights
    ColorRGB<float> highlights{190 / 255.0F, 156 / 255.0F, 54 / 255.0F}; ///< tint, 0..1
    ColorRGB<float> shadows{110 / 255.0F, 148 / 255.0F, 198 / 255.0F};   ///< tint, 0..1

    bool operator==(const HalfToneFilterParameters &) const = default;
    static const FilterDeclaration<HalfToneFilterParameters> &declaration();
};

inline const FilterDeclaration<HalfToneFilterParameters> &HalfToneFilterParameters::declaration()
{
    using Parameters = HalfToneFilterParameters;
    static const FilterDeclaration<Parameters> declared{
        .name = "HalfToneFilter",
        .parameters = {
            {"weight", "1", 0.75F, 1.25F, std::nullopt, [](Parameters &p) { return std::span(&p.weight, 1); }},
            {"highlights", "1", 0, 1, std::nullopt, [](Parameters &p) { return std::span(&p.highlights.r, 3); }},
            {"shadows", "1", 0, 1, std::nullopt, [](Parameters &p) { return std::span(&p.shadows.r, 3); }}}};
    return declared;
}

} // namespace grisal::graphics
