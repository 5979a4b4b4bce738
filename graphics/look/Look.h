// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Curve.h"
#include "graphics/look/EnabledFilters.h"
#include "graphics/look/FilterParameters.h"

namespace grisal::graphics
{

/// Everything that the panels show: which filters are on, and their settings. Initially the defaults of the panels.
///
/// In contrast to FilterParameters, curves are control points instead of samples, so that they can be edited. Units and
/// ranges are those of the declarations of the filters.
struct Look {
    EnabledFilters enabled; ///< the mixer is always on
    MixerFilterParameters mixer;
    Curve toneCurve = CurveFilterParameters::defaultCurve();
    Curve grainStrength = GrainFilterParameters::defaultStrength();
    float grainRadius = GrainFilterParameters().radius;
    HalfToneFilterParameters splitTone;
    VignetteFilterParameters vignette;

    /// Returns the parameters of the filters, with the curves sampled.
    FilterParameters parameters() const;

    bool operator==(const Look &) const = default;
};

} // namespace grisal::graphics
