// SPDX-License-Identifier: MIT
#include "graphics/filters/FinalVignetteFilter.h"

#include "graphics/filters/NoiseMap.h"

namespace grisal::graphics
{

FinalVignetteFilter::FinalVignetteFilter()
    : IFilter("FinalVignetteFilter"),
      m_program("FinalBWVignette", vertexSource(), fragmentSource("FinalVignetteFilter")),
      m_noiseTexture(loadNoiseMap())
{
}

void FinalVignetteFilter::apply(GLuint, const FramebufferObject &target)
{
    setVignetteUniforms(m_program, parameters, width, height, maxWidth, maxHeight);
    renderToFramebuffer(width, height, m_program.program, target);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

} // namespace grisal::graphics
