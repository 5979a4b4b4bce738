// SPDX-License-Identifier: MIT
#pragma once

#include <Magick++.h>

namespace grisal::graphics
{

/// How a picture that is kept turned or mirrored has to be moved to stand upright, in the numbers of Exif: 1 not at
/// all, 2 mirrored from left to right, 3 turned by half, 4 mirrored from top to bottom, 5 mirrored about the diagonal
/// from top left, 6 turned clockwise by a quarter, 7 mirrored about the other diagonal, 8 turned the other way round.
/// Pixels change their places and nothing else. Any other number counts as 1.
void turnUpright(Magick::Image &image, int orientation);

} // namespace grisal::graphics
