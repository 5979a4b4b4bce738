// SPDX-License-Identifier: MIT
#pragma once

#include <Magick++.h>

#include <cstdint>

namespace grisal::bench
{

/// An image with gradients, edges and a little noise, so that its files have the size and decoding time of photographs.
/// Its noise depends on `seed`, the rest on its size only. `depth` is 8 or 16 bits per channel.
inline Magick::Image paintedPicture(unsigned width, unsigned height, unsigned depth, std::uint32_t seed = 1)
{
    Magick::Image image(Magick::Geometry(width, height), Magick::Color());
    image.type(Magick::TrueColorType);
    image.depth(depth);
    const std::uint32_t mask = depth == 16 ? 0xffffU : 0xff00U;
    std::uint32_t noise = seed;
    for (unsigned y = 0; y < height; ++y) {
        Magick::PixelPacket *pixel = image.setPixels(0, y, width, 1);
        for (unsigned x = 0; x < width; ++x, ++pixel) {
            noise = noise * 1664525U + 1013904223U;
            const std::uint32_t grain = noise >> 20U;
            const std::uint32_t edge = ((x / 97) ^ (y / 61)) % 7 * 2500;
            pixel->red = static_cast<Magick::Quantum>((x * 45000U / width + edge + grain) & mask);
            pixel->green = static_cast<Magick::Quantum>((y * 45000U / height + edge + grain) & mask);
            pixel->blue = static_cast<Magick::Quantum>(((x + y) * 22000U / width + 2 * grain) & mask);
            pixel->opacity = 0;
            pixel->red |= depth == 8 ? pixel->red >> 8U : 0;
            pixel->green |= depth == 8 ? pixel->green >> 8U : 0;
            pixel->blue |= depth == 8 ? pixel->blue >> 8U : 0;
        }
        image.syncPixels();
    }
    return image;
}

} // namespace grisal::bench
