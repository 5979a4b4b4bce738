// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterParameters.h"
#include "graphics/render/TileProgress.h"

namespace grisal::graphics
{

class DocumentFilterQueue;
class DocumentView;
struct FilterSet;

/// A picture to be rendered at full size, in place.
struct FinalPicture {
    void *pixels;    ///< interleaved, rows from top to bottom without padding; the caller owns them
    int width;       ///< in pixels
    int height;      ///< in pixels
    bool sixteenBit; ///< 16-bit words instead of bytes
    bool hasAlpha;   ///< 4 components a pixel instead of 3; the fourth is left as it is
    /// Without a result the pixels may be anything, instead of what they were: the render then needs no copy of them.
    bool expendable = false;
};

/// Fills a queue in the order of the final render: unlike in the preview, split toning comes before the grain.
void addFinalFilters(DocumentFilterQueue &queue, FilterSet &filters);

/// Renders the picture with the filters that are enabled and the given parameters, over as many tiles as it takes.
/// 16-bit pictures pass through half floats.
///
/// The context must be current. `view` is only asked to set up its projection. The filters have the parameters
/// afterwards, their sizes are what they were, and the grain's noise has the parameters' radius. Returns whether
/// there was a result; without one the pixels are unchanged unless they are expendable.
bool renderFinalPicture(const FinalPicture &picture, const FilterParameters &parameters, FilterSet &filters,
                        DocumentView &view, const TileProgress &progress = {});

} // namespace grisal::graphics
