// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/VignetteParameters.h"
#include "graphics/gl/Framebuffers.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/TilePixels.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace grisal::graphics
{

/// The vignette of a whole picture as a mask: for each pixel its vignetteValue() for the picture's size. The context
/// must be current throughout its life.
///
/// The driver draws it once and keeps it. A mask that is larger than `largestSide`, the driver's largest texture side,
/// or for which the driver gives no target, is computed without the GPU, piece by piece, with the same formula, and the
/// log says so.
class VignetteMask
{
public:
    VignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                 std::uint32_t largestSide);

    /// The mask of an area as a texture of the area's size, GL_R32F.
    Texture piece(const TileArea &area) const;

private:
    bool draw();
    std::vector<float> computed(const TileArea &area) const;

    VignetteParameters m_parameters;
    std::int32_t m_width;
    std::int32_t m_height;
    std::unique_ptr<RenderTarget> m_target;
};

} // namespace grisal::graphics
