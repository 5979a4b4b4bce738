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
    applyPart(0, 0, width, height, target);
}

void FinalVignetteFilter::applyPart(int x, int y, int partWidth, int partHeight, const FramebufferObject &target)
{
    const ShaderProgram &program = m_program;
    setVignetteUniforms(program, parameters, width, height, maxWidth, maxHeight);
    setUniform3f(program, "Origin", static_cast<float>(x), static_cast<float>(y), 0);
    renderToFramebuffer(partWidth, partHeight, program.program, target);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

} // namespace grisal::graphics
