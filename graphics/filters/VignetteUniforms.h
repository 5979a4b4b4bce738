// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/VignetteParameters.h"
#include "graphics/shader/ShaderProgram.h"

namespace grisal::graphics
{

/// Sets the uniforms of both vignette filters, always in the same order. Uniforms that the program does not have are
/// skipped.
void setVignetteUniforms(const ShaderProgram &program, const VignetteParameters &parameters, int width, int height,
                         float maxWidth, float maxHeight);

} // namespace grisal::graphics
