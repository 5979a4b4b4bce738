// SPDX-License-Identifier: MIT
#include "graphics/filters/HalfToneFilter.h"

namespace grisal::graphics
{

HalfToneFilter::HalfToneFilter() : IFilter(declaration().name), m_program("HalfTone", "HalfToneFilter") {}

void HalfToneFilter::setParameters(const Parameters &wanted)
{
    weight = wanted.weight;
    firstColor = wanted.highlights;
    secondColor = wanted.shadows;
}

void HalfToneFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(program(), "Width", static_cast<float>(width));
    setUniform1f(program(), "Height", static_cast<float>(height));
    setUniform1f(program(), "Weight", weight);
    setUniform1f(program(), "MaxPixel", maxPixel);
    setUniform3f(program(), "FirstColor", firstColor.r, firstColor.g, firstColor.b);
    setUniform3f(program(), "SecondColor", secondColor.r, secondColor.g, secondColor.b);
    runPass(program(), width, height, sourceTexture, target);
}

} // namespace grisal::graphics
