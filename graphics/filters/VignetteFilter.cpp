// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteFilter.h"

#include "graphics/filters/NoiseMap.h"

namespace grisal::graphics
{

VignetteFilter::VignetteFilter() : IFilter("VignetteFilter"), m_program("BWVignette", "VignetteFilter") {}

void VignetteFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    if (m_noiseTexture.name() == 0) {
        m_noiseTexture = Texture(loadNoiseMap());
    }
    setVignetteUniforms(m_program, parameters, width, height, maxWidth, maxHeight);
    bindTexture2D(m_program, "NoiseMap", m_noiseTexture.name(), unit::extra);
    runPass(m_program, width, height, sourceTexture, target);
}

} // namespace grisal::graphics
