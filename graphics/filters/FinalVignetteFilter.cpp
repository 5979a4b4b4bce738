// SPDX-License-Identifier: MIT
#include "graphics/filters/FinalVignetteFilter.h"

namespace grisal::graphics
{

FinalVignetteFilter::FinalVignetteFilter()
    : IFilter("FinalVignetteFilter"), m_program("FinalBWVignette", "FinalVignetteFilter")
{
}

void FinalVignetteFilter::apply(GLuint, const FramebufferObject &target)
{
    const ShaderProgram &program = m_program;
    setVignetteUniforms(program, parameters, width, height, maxWidth, maxHeight);
    renderToFramebuffer(width, height, program.program, target);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

} // namespace grisal::graphics
