// SPDX-License-Identifier: MIT
#include "graphics/files/ImageMemory.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

/// Four 16-bit samples of a pixel and an index, for which GraphicsMagick reserves memory in every image.
constexpr std::uint64_t bytesPerPixel = 10;

constexpr std::uint64_t largestCamera = 100'000'000; ///< pixels
constexpr std::uint64_t maxPixelsPerByte = 512;
constexpr std::uint64_t maxPixelsPerBaselineJpegByteBeyond = 100;
constexpr std::uint64_t maxPixelsPerByteBeyond = 40;
constexpr std::uint64_t maxCopiedBytesPerPixel = 64;

/// Declared sizes are limited, so that products do not overflow.
std::uint64_t pixelsOf(const ImageHeader &header)
{
    return std::min(header.pixels(), std::uint64_t{1} << 32);
}

} // namespace

std::uint64_t memoryToRead(const ImageHeader &header)
{
    return pixelsOf(header) * (bytesPerPixel + std::max(bytesPerPixel, std::uint64_t{header.decoderBytesPerPixel}));
}

std::uint64_t memoryToWrite(const ImageHeader &header)
{
    return pixelsOf(header) * bytesPerPixel;
}

bool isPlausible(const ImageHeader &header, std::uint64_t storedBytes)
{
    const std::uint64_t pixels = pixelsOf(header);
    const bool isBaselineJpeg = header.isJpeg && header.decoderBytesPerPixel == 0;
    const std::uint64_t pixelsPerByteBeyond =
        isBaselineJpeg ? maxPixelsPerBaselineJpegByteBeyond : maxPixelsPerByteBeyond;
    return memoryToRead(header) <= maxUncheckedMemory ||
           pixels / (pixels <= largestCamera ? maxPixelsPerByte : pixelsPerByteBeyond) <= storedBytes;
}

bool isPlausibleCopy(const ImageHeader &header, std::uint64_t copiedBytes)
{
    return memoryToRead(header) + copiedBytes <= maxUncheckedMemory ||
           copiedBytes <= pixelsOf(header) * maxCopiedBytesPerPixel;
}

} // namespace grisal::graphics
