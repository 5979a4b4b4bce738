// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace grisal::graphics
{

/// The preview's copy of an image: interleaved RGB, rows from top to bottom without padding. Exactly one of the two
/// vectors contains the samples.
struct PreviewPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;
    std::vector<std::uint16_t> words;

    const void *data() const;
};

/// The largest width and height of a preview in pixels.
constexpr int maxPreviewSide = 4096;

/// Returns the side rounded down to a multiple of 4. Sides of 1 to 3 pixels are kept, because they would be rounded to
/// 0.
int roundedPreviewSide(int side);

/// Copies the top left roundedPreviewSide(width) x roundedPreviewSide(height) pixels and downscales the copy by two
/// until no side exceeds maxPreviewSide. `pixels` has 3 components per pixel, or 4 with `alpha`; the fourth is dropped.
/// Samples have 8 bits, or 16 bits with `sixteenBit`.
PreviewPixels makePreviewPixels(const void *pixels, int width, int height, bool sixteenBit, bool alpha);

/// Downscales by two: each pixel is the mean of 2 x 2 pixels, rounded to nearest. The last row or column is dropped if
/// the side is odd; a side of 1 stays 1.
PreviewPixels halved(const PreviewPixels &pixels);

} // namespace grisal::graphics
