// SPDX-License-Identifier: MIT
#include "graphics/files/QuantumCopy.h"

namespace grisal::graphics
{

namespace
{

using Magick::PixelPacket;
using Magick::Quantum;

constexpr int byteShift = 8;
constexpr Quantum byteSpread = 257;
constexpr Quantum defaultOpacity8 = 255;
constexpr Quantum defaultOpacity16 = 65535;

Quantum spread(Quantum sample)
{
    return static_cast<Quantum>((sample >> byteShift) * byteSpread);
}

} // namespace

void copySamples8Out(const PixelPacket *pixels, std::size_t count, std::uint8_t *target, bool alpha)
{
    for (const PixelPacket *pixel = pixels; pixel != pixels + count; ++pixel) {
        *target++ = static_cast<std::uint8_t>(pixel->red >> byteShift);
        *target++ = static_cast<std::uint8_t>(pixel->green >> byteShift);
        *target++ = static_cast<std::uint8_t>(pixel->blue >> byteShift);
        if (alpha) {
            *target++ = static_cast<std::uint8_t>(pixel->opacity);
        }
    }
}

void copySamples16Out(const PixelPacket *pixels, std::size_t count, std::uint16_t *target, bool alpha)
{
    for (const PixelPacket *pixel = pixels; pixel != pixels + count; ++pixel) {
        *target++ = pixel->red;
        *target++ = pixel->green;
        *target++ = pixel->blue;
        if (alpha) {
            *target++ = pixel->opacity;
        }
    }
}

void copySamples8In(const std::uint8_t *source, std::size_t count, PixelPacket *pixels, bool alpha)
{
    for (PixelPacket *pixel = pixels; pixel != pixels + count; ++pixel) {
        pixel->red = static_cast<Quantum>(*source++ << byteShift);
        pixel->green = static_cast<Quantum>(*source++ << byteShift);
        pixel->blue = static_cast<Quantum>(*source++ << byteShift);
        pixel->opacity = alpha ? *source++ : defaultOpacity8;
    }
}

void copySpreadSamples8In(const std::uint8_t *source, std::size_t count, PixelPacket *pixels)
{
    for (PixelPacket *pixel = pixels; pixel != pixels + count; ++pixel) {
        pixel->red = static_cast<Quantum>(*source++ * byteSpread);
        pixel->green = static_cast<Quantum>(*source++ * byteSpread);
        pixel->blue = static_cast<Quantum>(*source++ * byteSpread);
        pixel->opacity = defaultOpacity8;
    }
}

void copySamples16In(const std::uint16_t *source, std::size_t count, PixelPacket *pixels, bool alpha)
{
    for (PixelPacket *pixel = pixels; pixel != pixels + count; ++pixel) {
        pixel->red = *source++;
        pixel->green = *source++;
        pixel->blue = *source++;
        pixel->opacity = alpha ? *source++ : defaultOpacity16;
    }
}

void spreadHighBytes(PixelPacket *pixels, std::size_t count)
{
    for (PixelPacket *pixel = pixels; pixel != pixels + count; ++pixel) {
        pixel->red = spread(pixel->red);
        pixel->green = spread(pixel->green);
        pixel->blue = spread(pixel->blue);
    }
}

} // namespace grisal::graphics
