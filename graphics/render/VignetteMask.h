// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/VignetteParameters.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/TilePixels.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace grisal::graphics
{

class FinalVignetteFilter;

/// The vignette of a whole picture as a mask: for each pixel its vignetteValue() for the picture's size. The context
/// must be current throughout its life.
///
/// It never exists as a whole, which would take as much memory as the picture: pieces are drawn when they are asked
/// for. A mask that is larger than `largestSide`, the driver's largest texture side, or a piece for which the driver
/// gives no target, is computed without the GPU, with the same formula, and the log says so. A drawn piece is the whole
/// with its centre moved and differs from it by that centre's rounding.
class VignetteMask
{
public:
    VignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                 std::uint32_t largestSide);
    ~VignetteMask();

    /// The mask of an area as a texture of the area's size, GL_R32F.
    Texture piece(const TileArea &area) const;

private:
    Texture drawn(const TileArea &area) const;
    std::vector<float> computed(const TileArea &area) const;

    VignetteParameters m_parameters;
    std::int32_t m_width;
    std::int32_t m_height;
    std::uint32_t m_largestSide;
    mutable std::unique_ptr<FinalVignetteFilter> m_filter; ///< none any more once the driver has failed
};

} // namespace grisal::graphics
