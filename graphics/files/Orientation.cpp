// SPDX-License-Identifier: MIT
#include "graphics/files/Orientation.h"

namespace grisal::graphics
{

void normaliseOrientation(Magick::Image &image, int orientation)
{
    constexpr double quarter = 90;
    switch (orientation) {
    case 2:
        image.flop();
        break;
    case 3:
        image.rotate(2 * quarter);
        break;
    case 4:
        image.flip();
        break;
    case 5:
        image.rotate(quarter);
        image.flop();
        break;
    case 6:
        image.rotate(quarter);
        break;
    case 7:
        image.rotate(quarter);
        image.flip();
        break;
    case 8:
        image.rotate(3 * quarter);
        break;
    default:
        break;
    }
}

} // namespace grisal::graphics
