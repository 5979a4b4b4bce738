// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/CurveFilter.h"
#include "graphics/filters/FilterParameters.h"
#include "graphics/filters/GrainFilter.h"
#include "graphics/filters/HalfToneFilter.h"
#include "graphics/filters/MixerFilter.h"
#include "graphics/filters/VignetteFilter.h"

namespace grisal::graphics
{

/// The five filters of a picture, shared by its preview and its final render. Made, used and destroyed with the
/// context current.
struct FilterSet {
    MixerFilter mixer;
    CurveFilter curve;
    VignetteFilter vignette;
    HalfToneFilter splitTone;
    GrainFilter grain;

    /// Sets the size of the passes of all five filters, in pixels.
    void setSize(int width, int height);

    /// Tells the vignette the size of the whole picture, in pixels.
    void setPictureSize(int width, int height);

    /// Copies parameters into the filters they belong to. The grain's radius is not among them: setting it renders.
    void setParameters(const FilterParameters &parameters);
    void setMixer(const FilterParameters &parameters);
    void setCurve(const FilterParameters &parameters);
    void setVignette(const FilterParameters &parameters);
    void setSplitTone(const FilterParameters &parameters);
    void setGrainWeights(const FilterParameters &parameters);
};

} // namespace grisal::graphics
