// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/ColorRGB.h"
#include "graphics/look/FilterDeclaration.h"

namespace grisal::graphics
{

struct MixerFilterParameters {
    ColorRGB<float> weights{1.0F / 3, 1.0F / 3, 1.0F / 3}; ///< multipliers of the channels

    bool operator==(const MixerFilterParameters &) const = default;
    static const FilterDeclaration<MixerFilterParameters> &declaration();
};

inline const FilterDeclaration<MixerFilterParameters> &MixerFilterParameters::declaration()
{
    using Parameters = MixerFilterParameters;
    static const FilterDeclaration<Parameters> declared{
        .name = "MixerFilter",
        .enabledAtLoad = true,
        .parameters = {{"weights", "1", -512.0F / 255, 512.0F / 255, std::nullopt,
                        [](Parameters &p) { return std::span(&p.weights.r, 3); }}}};
    return declared;
}

} // namespace grisal::graphics
