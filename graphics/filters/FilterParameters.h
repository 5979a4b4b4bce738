// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/ColorRGB.h"

#include <QVector>

namespace grisal::graphics
{

/// What the panels say about a picture, in the units of the filters. The initial values are what a picture gets at its
/// first load, before any panel has spoken.
struct FilterParameters {
    FilterParameters();

    ColorRGB<float> mixerWeights; ///< multipliers of the channels; one third each

    QVector<float> curve; ///< 256 samples 0..1, sample i the output for the grey i/256; the identity

    float vignetteX = 50;        ///< centre, percent of the width from the left
    float vignetteY = 50;        ///< centre, percent of the height from the top
    float vignetteRadius = 50;   ///< percent of the mean of width and height
    float vignetteStrength = 50; ///< percent; 0 is neutral
    bool extraBlur = false;      ///< kept, used by nothing

    float splitWeight = 1;         ///< share of the highlights
    ColorRGB<float> highlightTint; ///< 0..1
    ColorRGB<float> shadowTint;    ///< 0..1

    QVector<float> grainWeights; ///< 256 samples 0..1, strength of the grain for the grey i/256; all 0
    float grainRadius = 1.5F;    ///< blur of the noise in pixels
};

} // namespace grisal::graphics
