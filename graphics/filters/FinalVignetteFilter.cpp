// SPDX-License-Identifier: MIT
#include "graphics/filters/FinalVignetteFilter.h"

#include "graphics/filters/VignetteUniforms.h"

namespace grisal::graphics
{

namespace
{

/// Converts a centre in percent of `side` into one relative to the pixel `offset`: centre - 100 * offset / side. The
/// shader computes side * 0.01 * centre in single precision; the same rounded position is computed here before it is
/// moved.
float movedCentre(float centre, int offset, int side)
{
    if (offset == 0) {
        return centre;
    }
    const float pixelsPerPercent = static_cast<float>(side) * 0.01F;
    const float position = pixelsPerPercent * centre;
    return (position - static_cast<float>(offset)) / pixelsPerPercent;
}

} // namespace

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
    VignetteParameters moved = parameters;
    moved.center.x = movedCentre(parameters.center.x, x, width);
    moved.center.y = movedCentre(parameters.center.y, y, height);
    setVignetteUniforms(program(), moved, width, height, maxWidth, maxHeight);
    renderToFramebuffer(partWidth, partHeight, program().program, target);
}

} // namespace grisal::graphics
