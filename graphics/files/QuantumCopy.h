// SPDX-License-Identifier: MIT
#pragma once

#include <Magick++.h>

#include <cstddef>
#include <cstdint>

namespace grisal::graphics
{

/// Copies between the image library's pixels, four samples of 16 bits each, and interleaved buffers: R, G, B and, with
/// `alpha`, the library's opacity as a fourth component.
///
/// A byte b stands in the library as b * 257, which is what the library writes to files of 8 bits as b.

/// Takes the high bytes of the colours, and of the opacity the low one.
void copyBytesOut(const Magick::PixelPacket *pixels, std::size_t count, std::uint8_t *target, bool alpha);
void copyWordsOut(const Magick::PixelPacket *pixels, std::size_t count, std::uint16_t *target, bool alpha);

/// Copies in; without alpha the source may begin where the pixels do, in the same memory.
///
/// The opacity is the fourth component as it is; without one, 255.
void copyBytesIn(const std::uint8_t *source, std::size_t count, Magick::PixelPacket *pixels, bool alpha);
/// The opacity is the fourth component; without one, 65535.
void copyWordsIn(const std::uint16_t *source, std::size_t count, Magick::PixelPacket *pixels, bool alpha);

/// Leaves of every colour the high byte.
void keepHighBytes(std::uint16_t *words, std::size_t count, bool alpha);

/// Copies bytes or words into a buffer of bytes or words: a byte b is the word b << 8, and the other way round.
void unpack(const void *packed, bool fromWords, std::size_t count, void *buffer, bool toWords);

/// Makes b * 257 of every sample's high byte b.
void spreadBytes(Magick::PixelPacket *pixels, std::size_t count);

} // namespace grisal::graphics
