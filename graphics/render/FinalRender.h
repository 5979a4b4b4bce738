// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/Look.h"
#include "graphics/render/TileProgress.h"

namespace grisal::graphics
{

class DocumentView;
class FilterSet;

/// An image to be rendered at full size, in place.
struct FinalImage {
    void *pixels;    ///< interleaved, rows from top to bottom without padding; the caller owns them
    int width;       ///< in pixels
    int height;      ///< in pixels
    bool sixteenBit; ///< 16-bit samples instead of 8-bit samples
    bool hasAlpha;   ///< 4 components per pixel instead of 3; the fourth stays unchanged
};

/// Renders the image, tile by tile, with the enabled filters and the given look. 16-bit images are rendered as half
/// floats.
///
/// The context must be current. Only the projection of `view` is used. Afterwards the filters have the parameters of
/// the look and their previous sizes, and the grain's noise has the radius of the look. Returns false if there is no
/// result; the pixels are then unchanged.
bool renderFinalImage(const FinalImage &picture, const Look &look, FilterSet &filters, DocumentView &view,
                      const TileProgress &progress = {});

} // namespace grisal::graphics
