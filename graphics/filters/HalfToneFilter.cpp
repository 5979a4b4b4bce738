// SPDX-License-Identifier: MIT
#include "graphics/filters/HalfToneFilter.h"

namespace grisal::graphics
{

HalfToneFilter::HalfToneFilter() : IFilter("HalfToneFilter"), m_program("HalfTone", "HalfToneFilter") {}

void HalfToneFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(m_program, "Width", static_cast<float>(width));
    setUniform1f(m_program, "Height", static_cast<float>(height));
    setUniform1f(m_program, "Weight", weight);
    setUniform1f(m_program, "MaxPixel", maxPixel);
    setUniform3f(m_program, "FirstColor", firstColor.r, firstColor.g, firstColor.b);
    setUniform3f(m_program, "SecondColor", secondColor.r, secondColor.g, secondColor.b);
    runPass(m_program, width, height, sourceTexture, target);
}

} // namespace grisal::graphics
