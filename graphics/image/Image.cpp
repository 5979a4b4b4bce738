// SPDX-License-Identifier: MIT
#include "graphics/image/Image.h"

#include <algorithm>

namespace grisal::graphics
{

Image8 highBytes(const Image16 &image)
{
    Image8 bytes(image.width, image.height, image.components);
    std::transform(image.samples.begin(), image.samples.end(), bytes.samples.begin(),
                   [](std::uint16_t sample) { return static_cast<std::uint8_t>(sample >> 8); });
    return bytes;
}

} // namespace grisal::graphics
