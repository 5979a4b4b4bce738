// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Textures.h"
#include "graphics/image/TileArea.h"

namespace grisal::graphics
{

/// The effect of a filter that depends on the position in the image, as a mask of the whole image for an OverlayFilter.
/// The context must be current when it is created, used and destroyed.
class IPositionMask
{
public:
    virtual ~IPositionMask() = default;

    /// Returns the mask of an area as a GL_R32F texture of the area's size.
    virtual Texture piece(const TileArea &area) = 0;
};

} // namespace grisal::graphics
