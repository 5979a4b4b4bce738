// SPDX-License-Identifier: MIT
#include "graphics/filters/OverlayFilter.h"

namespace grisal::graphics
{

// The label is that of the mixer's program on purpose: lists of programs contain both under this name.
OverlayFilter::OverlayFilter() : IFilter("OverlayFilter"), m_program("BWConversionMixer", "OverlayFilter") {}

void OverlayFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(program(), "Width", static_cast<float>(width));
    setUniform1f(program(), "Height", static_cast<float>(height));
    bindTexture2D(program(), "OverlayTexture", overlayTexture, unit::extra);
    runPass(program(), width, height, sourceTexture, target);
}

} // namespace grisal::graphics
