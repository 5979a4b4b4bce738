// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Image.h"

namespace grisal::graphics
{

/// Pixels that belong to the caller, interleaved, rows from top to bottom.
template <typename Sample>
struct PixelRows {
    const Sample *samples; ///< the first sample of the top left pixel
    std::size_t rowLength; ///< samples from one row to the next
    int components;        ///< of a pixel: rgbComponents or rgbaComponents; alpha is ignored
};

/// Copies the top left width x height pixels and downscales the copy by two, `times` times. Each pixel becomes the mean
/// of 2 x 2 pixels, rounded to nearest. The last row or column is dropped if the side is odd; a side of 1 stays 1.
template <typename Sample>
Raster<Sample> downscale(const PixelRows<Sample> &rows, int width, int height, int times);

} // namespace grisal::graphics
