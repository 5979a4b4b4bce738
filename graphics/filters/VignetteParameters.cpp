// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteParameters.h"

#include "graphics/filters/IFilter.h"

#include <cmath>

namespace grisal::graphics
{

float vignetteValue(const VignetteParameters &parameters, float width, float height, float px, float py)
{
    if (!(parameters.strength > 0)) {
        return 0;
    }
    const float dx = width * 0.01F * parameters.center.x - px;
    const float dy = height * 0.01F * parameters.center.y - py;
    const float distance = std::sqrt(dx * dx + dy * dy);
    const float maxDistance = parameters.radius * 0.01F * ((width + height) * 0.5F);
    return parameters.strength * 0.01F * distance / maxDistance;
}

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
