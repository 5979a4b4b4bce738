// SPDX-License-Identifier: MIT
#include "graphics/filters/MixerFilter.h"

namespace grisal::graphics
{

MixerFilter::MixerFilter() : IFilter(declaration().name), m_program("BWConversionMixer", "MixerFilter") {}

void MixerFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(program(), "Width", static_cast<float>(width));
    setUniform1f(program(), "Height", static_cast<float>(height));
    setUniform1f(program(), "MaxPixel", maxPixel);
    setUniform3f(program(), "Weights", weights.r, weights.g, weights.b);
    runPass(program(), width, height, sourceTexture, target);
}

} // namespace grisal::graphics
