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

} // namespace

std::uint64_t memoryToRead(const ImageHeader &header)
{
    return header.pixels() * (bytesPerPixel + std::max(bytesPerPixel, std::uint64_t{header.decoderBytesPerPixel}));
}

std::uint64_t memoryToWrite(const ImageHeader &header)
{
    return header.pixels() * bytesPerPixel;
}

bool isPlausible(const ImageHeader &header, std::uint64_t storedBytes)
{
    const std::uint64_t pixels = header.pixels();
    const bool isBaselineJpeg = header.isJpeg && header.decoderBytesPerPixel == 0;
    const std::uint64_t pixelsPerByteBeyond =
        isBaselineJpeg ? maxPixelsPerBaselineJpegByteBeyond : maxPixelsPerByteBeyond;
    return memoryToRead(header) <= maxUncheckedMemory ||
           pixels / (pixels <= largestCamera ? maxPixelsPerByte : pixelsPerByteBeyond) <= storedBytes;
}

bool isPlausibleCopy(const ImageHeader &header, std::uint64_t copiedBytes)
{
    return memoryToRead(header) + copiedBytes <= maxUncheckedMemory ||
           copiedBytes <= header.pixels() * maxCopiedBytesPerPixel;
}

} // namespace grisal::graphics
