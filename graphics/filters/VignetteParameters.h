// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/shader/ShaderProgram.h"

namespace grisal::graphics
{

/// The shape of a vignette.
struct VignetteParameters {
    struct Center {
        float x = 0; ///< percent of the width from the left
        float y = 0; ///< percent of the height from the first row, the picture's top
        float z = 0; ///< always 0
    } center;
    float strength = 0; ///< percent; 0 is neutral
    float radius = 0;   ///< percent of the mean of width and height: where the strength is reached
};

/// The darkening at the point (px, py), in pixels, of a picture of width x height pixels: with d the distance from the
/// centre and dmax = radius * 0.01 * (width + height) / 2 it is strength * 0.01 * d / dmax, not clamped. Pixel centres
/// lie at halves. 0 for a strength of 0 or less.
float vignetteValue(const VignetteParameters &parameters, float width, float height, float px, float py);

/// What both vignette filters send to their programs, in their order, whether a program has the uniform or not.
void setVignetteUniforms(const ShaderProgram &program, const VignetteParameters &parameters, int width, int height,
                         float maxWidth, float maxHeight);

} // namespace grisal::graphics
