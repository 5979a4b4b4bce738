// SPDX-License-Identifier: MIT
#include "app/PictureMemory.h"

#include "graphics/files/ImageFile.h"
#include "graphics/files/ImageMemory.h"
#include "graphics/image/Image.h"
#include "graphics/image/PreviewImage.h"

#include <algorithm>

namespace grisal
{

namespace
{

// Measured with Mesa's software driver: 106 megabytes for a preview of 4 megapixels, 253 for one of 17.
constexpr std::uint64_t maxPreviewPixels = std::uint64_t{graphics::maxPreviewSide} * graphics::maxPreviewSide;
constexpr std::uint64_t bytesPerPreviewPixel = 16;
constexpr std::uint64_t memoryForTiles = 50'000'000;

} // namespace

std::uint64_t memoryForPicture(const graphics::ImageFile &file)
{
    const std::uint64_t pixels = file.header().pixels();
    const std::uint64_t bytesPerSample = file.header().bitsPerSample > 8 ? 2 : 1;
    const std::uint64_t samples = pixels * graphics::rgbComponents * bytesPerSample;
    const std::uint64_t toSave = 2 * samples + graphics::memoryToWrite(file.header());
    const std::uint64_t toShow = std::min(pixels, maxPreviewPixels) * bytesPerPreviewPixel + memoryForTiles;
    return std::max(file.memoryToRead(), toSave) + toShow;
}

} // namespace grisal
