// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Image.h"
#include "tests/support/Pictures.h"

namespace grisal::test
{

template <typename T>
graphics::Raster<T> imageOf(const Pixels<T> &pixels)
{
    graphics::Raster<T> image(pixels.width, pixels.height, pixels.components);
    image.samples = pixels.values;
    return image;
}

template <typename T>
Pixels<T> pixelsOf(const graphics::Image &image)
{
    const auto &raster = std::get<graphics::Raster<T>>(image);
    return {raster.width, raster.height, raster.components, raster.samples};
}

/// An image of one grey value in all channels.
inline graphics::Image8 greyImage(int width, int height, std::uint8_t grey)
{
    return {width, height, graphics::rgbComponents, grey};
}

/// Passes the pixels to `render`, a function that changes an image in place, and returns its result.
template <typename T, typename Render>
bool changeInPlace(Pixels<T> &pixels, Render render)
{
    graphics::Image image = imageOf(pixels);
    const bool result = render(image);
    pixels = pixelsOf<T>(image);
    return result;
}

} // namespace grisal::test
