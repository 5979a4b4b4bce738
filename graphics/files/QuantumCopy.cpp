// SPDX-License-Identifier: MIT
#include "graphics/files/QuantumCopy.h"

#include "graphics/image/Bands.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace grisal::graphics
{

namespace
{

constexpr int byteShift = 8;
constexpr Magick::Quantum byteSpread = 257;
constexpr Magick::Quantum defaultByteOpacity = 255;
constexpr Magick::Quantum defaultWordOpacity = 65535;

Magick::Quantum spread(unsigned byte)
{
    return static_cast<Magick::Quantum>(byte * byteSpread);
}

// The number of components is known when this is compiled, which is what makes the loops fast.
template <std::size_t components>
void bytesOut(const Magick::PixelPacket *pixel, std::size_t count, std::uint8_t *target)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel, target += components) {
        target[0] = static_cast<std::uint8_t>(pixel->red >> byteShift);
        target[1] = static_cast<std::uint8_t>(pixel->green >> byteShift);
        target[2] = static_cast<std::uint8_t>(pixel->blue >> byteShift);
        if constexpr (components == 4) {
            target[3] = static_cast<std::uint8_t>(pixel->opacity);
        }
    }
}

template <std::size_t components>
void wordsOut(const Magick::PixelPacket *pixel, std::size_t count, std::uint16_t *target)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel, target += components) {
        target[0] = pixel->red;
        target[1] = pixel->green;
        target[2] = pixel->blue;
        if constexpr (components == 4) {
            target[3] = pixel->opacity;
        }
    }
}

template <std::size_t components>
void bytesIn(const std::uint8_t *source, std::size_t count, Magick::PixelPacket *pixel)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel, source += components) {
        pixel->red = spread(source[0]);
        pixel->green = spread(source[1]);
        pixel->blue = spread(source[2]);
        pixel->opacity = components == 4 ? source[components - 1] : defaultByteOpacity;
    }
}

template <std::size_t components>
void wordsIn(const std::uint16_t *source, std::size_t count, Magick::PixelPacket *pixel)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel, source += components) {
        pixel->red = source[0];
        pixel->green = source[1];
        pixel->blue = source[2];
        pixel->opacity = components == 4 ? source[components - 1] : defaultWordOpacity;
    }
}

/// Fewer pixels are copied before another thread has started.
constexpr std::size_t smallestBand = 100'000;

/// Runs copy(from + ..., count, to + ...) over bands of the pixels; From and To lie that many values a pixel apart.
template <typename From, typename To>
void copyInBands(const From *from, std::size_t fromStep, To *to, std::size_t toStep, std::size_t count,
                 void (*copy)(const From *, std::size_t, To *))
{
    inBands(count, smallestBand, [=](std::size_t first, std::size_t end) {
        copy(from + first * fromStep, end - first, to + first * toStep);
    });
}

/// Spreads the values that lie packed where the pixels are to be. From the end on, so that nothing is overwritten
/// that is still to be read: the pixels from `first` on lie behind all that they are made of.
template <typename T>
void spreadInPlace(Magick::PixelPacket *pixels, std::size_t count,
                   void (*copy)(const T *, std::size_t, Magick::PixelPacket *))
{
    constexpr std::size_t components = 3;
    constexpr std::size_t packed = components * sizeof(T);
    const T *source = reinterpret_cast<const T *>(pixels);
    for (;;) {
        const std::size_t first = (count * packed + sizeof(Magick::PixelPacket) - 1) / sizeof(Magick::PixelPacket);
        if (count - first < smallestBand) {
            break;
        }
        copyInBands(source + first * components, components, pixels + first, 1, count - first, copy);
        count = first;
    }
    while (count-- > 0) {
        const std::array<T, components> values{source[count * components], source[count * components + 1],
                                               source[count * components + 2]};
        copy(values.data(), 1, pixels + count);
    }
}

} // namespace

void copyBytesOut(const Magick::PixelPacket *pixels, std::size_t count, std::uint8_t *target, bool alpha)
{
    copyInBands(pixels, 1, target, alpha ? 4 : 3, count, alpha ? bytesOut<4> : bytesOut<3>);
}

void copyWordsOut(const Magick::PixelPacket *pixels, std::size_t count, std::uint16_t *target, bool alpha)
{
    copyInBands(pixels, 1, target, alpha ? 4 : 3, count, alpha ? wordsOut<4> : wordsOut<3>);
}

void copyBytesIn(const std::uint8_t *source, std::size_t count, Magick::PixelPacket *pixels, bool alpha)
{
    if (static_cast<const void *>(source) == pixels && !alpha) {
        spreadInPlace(pixels, count, bytesIn<3>);
        return;
    }
    copyInBands(source, alpha ? 4 : 3, pixels, 1, count, alpha ? bytesIn<4> : bytesIn<3>);
}

void copyWordsIn(const std::uint16_t *source, std::size_t count, Magick::PixelPacket *pixels, bool alpha)
{
    if (static_cast<const void *>(source) == pixels && !alpha) {
        spreadInPlace(pixels, count, wordsIn<3>);
        return;
    }
    copyInBands(source, alpha ? 4 : 3, pixels, 1, count, alpha ? wordsIn<4> : wordsIn<3>);
}

void unpack(const void *packed, bool fromWords, std::size_t count, void *buffer, bool toWords)
{
    inBands(count, smallestBand, [=](std::size_t first, std::size_t end) {
        if (fromWords == toWords) {
            const std::size_t size = fromWords ? sizeof(std::uint16_t) : sizeof(std::uint8_t);
            std::memcpy(static_cast<std::byte *>(buffer) + first * size,
                        static_cast<const std::byte *>(packed) + first * size, (end - first) * size);
        } else if (toWords) {
            const auto *bytes = static_cast<const std::uint8_t *>(packed);
            std::transform(bytes + first, bytes + end, static_cast<std::uint16_t *>(buffer) + first,
                           [](unsigned byte) { return static_cast<std::uint16_t>(byte << byteShift); });
        } else {
            const auto *words = static_cast<const std::uint16_t *>(packed);
            std::transform(words + first, words + end, static_cast<std::uint8_t *>(buffer) + first,
                           [](unsigned word) { return static_cast<std::uint8_t>(word >> byteShift); });
        }
    });
}

void keepHighBytes(std::uint16_t *words, std::size_t count, bool alpha)
{
    constexpr std::uint16_t highByte = 0xff00;
    const std::size_t components = alpha ? 4 : 3;
    for (std::size_t i = 0; i < count; ++i, words += components) {
        words[0] &= highByte;
        words[1] &= highByte;
        words[2] &= highByte;
    }
}

void spreadBytes(Magick::PixelPacket *pixels, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i, ++pixels) {
        pixels->red = spread(pixels->red >> byteShift);
        pixels->green = spread(pixels->green >> byteShift);
        pixels->blue = spread(pixels->blue >> byteShift);
    }
}

} // namespace grisal::graphics
