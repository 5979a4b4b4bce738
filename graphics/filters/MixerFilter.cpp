// SPDX-License-Identifier: MIT
#include "graphics/filters/MixerFilter.h"

namespace grisal::graphics
{

MixerFilter::MixerFilter() : IFilter("MixerFilter"), m_program("BWConversionMixer", "MixerFilter") {}

void MixerFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(m_program, "Width", static_cast<float>(width));
    setUniform1f(m_program, "Height", static_cast<float>(height));
    setUniform1f(m_program, "MaxPixel", maxPixel);
    setUniform3f(m_program, "Weights", weights.r, weights.g, weights.b);
    runPass(m_program, width, height, sourceTexture, target);
}

} // namespace grisal::graphics
