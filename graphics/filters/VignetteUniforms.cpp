// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteUniforms.h"

#include "graphics/filters/IFilter.h"

namespace grisal::graphics
{

void setVignetteUniforms(const ShaderProgram &program, const VignetteParameters &parameters, int width, int height,
                         float maxWidth, float maxHeight)
{
    setUniform1f(program, "Width", static_cast<float>(width));
    setUniform1f(program, "Height", static_cast<float>(height));
    setUniform1f(program, "MaxWidth", maxWidth);
    setUniform1f(program, "MaxHeight", maxHeight);
    setUniform1f(program, "NoiseWidth", 100.0F);
    setUniform1f(program, "NoiseHeight", 100.0F);
    setUniform1f(program, "NoiseFactor", 1.0F);
    setUniform1f(program, "MaxPixel", maxPixel);
    setUniform3f(program, "VignetteCenter", parameters.center.x, parameters.center.y, parameters.center.z);
    setUniform1f(program, "Radius", parameters.radius);
    setUniform1f(program, "Strength", parameters.strength);
}

} // namespace grisal::graphics
