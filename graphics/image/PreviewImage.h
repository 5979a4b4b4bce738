// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Image.h"

namespace grisal::graphics
{

/// The largest width and height of a preview in pixels.
constexpr int maxPreviewSide = 4096;

/// Returns the side rounded down to a multiple of 4. Sides of 1 to 3 pixels are kept, because they would be rounded to
/// 0.
int roundedPreviewSide(int side);

/// Returns by how much an image of the given size is downscaled for its preview: 1, 2, 4 and so on.
int previewDownscaling(int width, int height);

/// Copies the top left roundedPreviewSide(width) x roundedPreviewSide(height) pixels, without alpha, and downscales the
/// copy by two until no side exceeds maxPreviewSide. The preview of an empty image is empty.
Image makePreview(const Image &image);

} // namespace grisal::graphics
