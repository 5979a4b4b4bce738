// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/Look.h"
#include "graphics/render/TileProgress.h"

namespace grisal::graphics
{

class DocumentView;
class FilterSet;

/// A picture to be rendered at full size, in place.
struct FinalPicture {
    void *pixels;    ///< interleaved, rows from top to bottom without padding; the caller owns them
    int width;       ///< in pixels
    int height;      ///< in pixels
    bool sixteenBit; ///< 16-bit words instead of bytes
    bool hasAlpha;   ///< 4 components a pixel instead of 3; the fourth is left as it is
};

/// Renders the image with the filters that are enabled and the given look, over as many tiles as it takes. 16-bit
/// images pass through half floats.
///
/// The context must be current. `view` is only asked to set up its projection. Afterwards the filters have the look's
/// parameters and the sizes that they had before, and the grain's noise has the look's radius. Returns whether there
/// was a result; without one the pixels are unchanged.
bool renderFinalPicture(const FinalPicture &picture, const Look &look, FilterSet &filters, DocumentView &view,
                        const TileProgress &progress = {});

} // namespace grisal::graphics
