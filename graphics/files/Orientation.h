// SPDX-License-Identifier: MIT
#pragma once

#include <Magick++.h>

namespace grisal::graphics
{

/// Rotates or mirrors an image so that its orientation becomes 1. `orientation` is its present one, in the numbers of
/// Exif: 1 needs nothing, 2 is mirrored from left to right, 3 rotated by 180 degrees, 4 mirrored from top to bottom, 5
/// mirrored about the diagonal from top left, 6 rotated clockwise by 90 degrees, 7 mirrored about the other diagonal, 8
/// rotated counterclockwise by 90 degrees. Pixels are moved and not changed. Any other number counts as 1.
void normaliseOrientation(Magick::Image &image, int orientation);

} // namespace grisal::graphics
