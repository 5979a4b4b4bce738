// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/EnabledFilters.h"
#include "graphics/look/FilterParameters.h"

#include <vector>

namespace grisal::graphics::cpu
{

/// The filters use this number for 1/255.
constexpr float nearly255th = 0.0039F;

/// A colour 0..1 after mixer, curve and split tone, and the weight 0..1 of the grain for it.
struct Tone {
    float red;
    float green;
    float blue;
    float grainWeight;
};

/// What a pixel goes through up to the split tone, for images of such samples. The mixer makes greys, and curve, split
/// tone and the grain's weight depend on the grey alone.
template <typename Sample>
struct ToneTables {
    /// Parameters without samples of a curve or weights of the grain have samples of 0.
    ToneTables(const FilterParameters &parameters, const EnabledFilters &enabled);

    std::vector<float> uploaded; ///< for each sample, the value 0..1 that the mixer reads
    std::vector<Tone> tones;     ///< for each StoredValues<Sample>::indexOf() of the mixer's grey
};

} // namespace grisal::graphics::cpu
