// SPDX-License-Identifier: MIT
#include "graphics/render/VignetteMask.h"

#include "graphics/filters/FinalVignetteFilter.h"
#include "graphics/gl/GlFaults.h"

#include <QDebug>

namespace grisal::graphics
{

namespace
{

/// False where the driver has no target of this size or does not get the mask drawn.
bool drawMask(const VignetteParameters &parameters, std::int32_t width, std::int32_t height, std::vector<float> &mask)
{
    GlFaultWatch watch;
    const RenderTarget target(width, height, GL_RED, GL_R32F, GL_FLOAT);
    if (!target.isComplete()) {
        watch.forgive();
        return false;
    }
    FinalVignetteFilter filter;
    filter.parameters = parameters;
    filter.width = width;
    filter.height = height;
    filter.maxWidth = static_cast<float>(width);
    filter.maxHeight = static_cast<float>(height);
    filter.apply(0, target.record());
    readPixels(target.record(), width, height, GL_RED, GL_FLOAT, mask.data());
    const bool drawn = watch.isClean();
    watch.forgive();
    return drawn;
}

void computeMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                 std::vector<float> &mask)
{
    const auto fullWidth = static_cast<float>(width);
    const auto fullHeight = static_cast<float>(height);
    std::size_t i = 0;
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            mask[i++] = vignetteValue(parameters, fullWidth, fullHeight, static_cast<float>(x) + 0.5F,
                                      static_cast<float>(y) + 0.5F);
        }
    }
}

} // namespace

std::vector<float> makeVignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                                    std::uint32_t largestSide)
{
    std::vector<float> mask(static_cast<std::size_t>(width) * height);
    const bool fits = width <= largestSide && height <= largestSide;
    if (!fits || !drawMask(parameters, static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), mask)) {
        qDebug() << "(INFO) Vignette mask computed without the GPU, its largest texture side is" << largestSide;
        computeMask(parameters, width, height, mask);
    }
    return mask;
}

} // namespace grisal::graphics
