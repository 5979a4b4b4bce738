// SPDX-License-Identifier: MIT
#pragma once

#include <Magick++.h>

#include <cstddef>
#include <cstdint>

namespace grisal::graphics
{

/// Copies between GraphicsMagick's pixels, four samples of 16 bits each, and interleaved buffers of `count` pixels:
/// R, G, B and, with `alpha`, the opacity as a fourth component.

/// Copies the high byte of the colours, and the low byte of the opacity.
void copySamples8Out(const Magick::PixelPacket *pixels, std::size_t count, std::uint8_t *target, bool alpha);
void copySamples16Out(const Magick::PixelPacket *pixels, std::size_t count, std::uint16_t *target, bool alpha);

/// An 8-bit sample b becomes b << 8. The opacity is the fourth component unscaled, or 255 without alpha.
void copySamples8In(const std::uint8_t *source, std::size_t count, Magick::PixelPacket *pixels, bool alpha);
/// Combines copySamples8In() without alpha and spreadHighBytes().
void copySpreadSamples8In(const std::uint8_t *source, std::size_t count, Magick::PixelPacket *pixels);
/// The opacity is the fourth component, or 65535 without alpha.
void copySamples16In(const std::uint16_t *source, std::size_t count, Magick::PixelPacket *pixels, bool alpha);

/// Makes every colour sample with the high byte b the value b * 257, which GraphicsMagick writes as b to files with 8
/// bits a channel.
void spreadHighBytes(Magick::PixelPacket *pixels, std::size_t count);

} // namespace grisal::graphics
