// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace grisal::graphics
{

/// The preview's own copy of a picture: interleaved RGB, rows from top to bottom without padding. Exactly one of the
/// two arrays is filled.
struct PreviewPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;
    std::vector<std::uint16_t> words;

    const void *data() const;
};

/// No side of a preview is longer than this.
constexpr int maxPreviewSide = 4096;

/// A side of a preview, cut down to a multiple of 4. Sides of 1 to 3 pixels stay, so that the picture can be seen.
int roundedPreviewSide(int side);

/// Copies the top left roundedPreviewSide(width) x roundedPreviewSide(height) pixels and halves the result until no
/// side is longer than maxPreviewSide. `pixels` has 3 components a pixel, 4 with `alpha`; the fourth is dropped.
PreviewPixels makePreviewPixels(const void *pixels, int width, int height, bool sixteenBit, bool alpha);

/// Half the size: each pixel is the mean of 2 x 2, rounded to nearest. A last odd row or column is dropped; a side of
/// 1 stays 1.
PreviewPixels halved(const PreviewPixels &pixels);

} // namespace grisal::graphics
