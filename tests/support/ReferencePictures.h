// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/ReferenceFilters.h"

namespace grisal::test::reference
{

/// The image that results from `pixel(x, y, colour)` for every pixel of the source.
template <typename Source, typename Pixel>
FloatPixels eachPixel(const Source &source, Pixel pixel)
{
    FloatPixels result(source.width, source.height);
    for (int y = 0; y < source.height; ++y) {
        for (int x = 0; x < source.width; ++x) {
            const Rgb colour = pixel(x, y, colourAt(source, x, y));
            result.at(x, y, 0) = colour.r;
            result.at(x, y, 1) = colour.g;
            result.at(x, y, 2) = colour.b;
        }
    }
    return result;
}

/// The values that a shader reads from an 8-bit texture of the image.
inline FloatPixels asFloats(const BytePixels &picture)
{
    return eachPixel(picture, [](int, int, Rgb colour) { return colour; });
}

/// The image as an 8-bit render target stores it.
inline BytePixels asBytes(const FloatPixels &picture)
{
    BytePixels result(picture.width, picture.height, picture.components);
    std::transform(picture.values.begin(), picture.values.end(), result.values.begin(), toByte);
    return result;
}

/// The image without its fourth component.
inline FloatPixels withoutAlpha(const FloatPixels &picture)
{
    return eachPixel(picture, [](int, int, Rgb colour) { return colour; });
}

/// An image that is not square and contains all 256 greys several times.
inline BytePixels greyRamp(int width = 67, int height = 41)
{
    BytePixels picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto grey = static_cast<std::uint8_t>((y * width + x) % 256);
            picture.at(x, y, 0) = picture.at(x, y, 1) = picture.at(x, y, 2) = grey;
        }
    }
    return picture;
}

/// An image of one grey.
inline BytePixels flatGrey(int width, int height, std::uint8_t grey)
{
    BytePixels picture(width, height);
    std::fill(picture.values.begin(), picture.values.end(), grey);
    return picture;
}

} // namespace grisal::test::reference
