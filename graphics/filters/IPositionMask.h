// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Textures.h"
#include "graphics/image/TileArea.h"

namespace grisal::graphics
{

/// The effect of a filter that depends on the position in the image, as a mask of the whole image for an OverlayFilter.
/// The context must be current throughout its life.
class IPositionMask
{
public:
    virtual ~IPositionMask() = default;

    /// The mask of an area as a texture of the area's size, GL_R32F.
    virtual Texture piece(const TileArea &area) = 0;
};

} // namespace grisal::graphics
