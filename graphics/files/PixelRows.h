// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Image.h"

#include <Magick++.h>

#include <functional>

namespace grisal::graphics
{

/// Changes some rows of an image in place; `firstRow` is the position of the first of them in the image.
using RowsTransform = std::function<void(Image &rows, int firstRow)>;

/// Passes GraphicsMagick's pixels to `transform` in blocks of whole rows that fit into the cache of a processor core,
/// with 16-bit samples or with the high bytes of the samples. Opacity is left out. The results are copied back like
/// copySamples16In() and copySpreadSamples8In() do it.
void transformPixelRows(Magick::PixelPacket *pixels, int width, int height, bool sixteenBit,
                        const RowsTransform &transform);

} // namespace grisal::graphics
