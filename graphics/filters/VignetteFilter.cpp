// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteFilter.h"

#include "graphics/filters/NoiseMap.h"
#include "graphics/filters/VignetteMask.h"
#include "graphics/filters/VignetteUniforms.h"

namespace grisal::graphics
{

VignetteFilter::VignetteFilter() : IFilter(declaration().name), m_program("BWVignette", "VignetteFilter")
{
    makePositionMask = [this](std::uint32_t imageWidth, std::uint32_t imageHeight) {
        return std::make_unique<VignetteMask>(parameters, imageWidth, imageHeight, largestTextureSide());
    };
}

void VignetteFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    if (m_noiseTexture.name() == 0) {
        m_noiseTexture = Texture(loadNoiseMap());
    }
    setVignetteUniforms(program(), parameters, width, height, maxWidth, maxHeight);
    bindTexture2D(program(), "NoiseMap", m_noiseTexture.name(), unit::extra);
    runPass(program(), width, height, sourceTexture, target);
}

} // namespace grisal::graphics
