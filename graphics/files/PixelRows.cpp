// SPDX-License-Identifier: MIT
#include "graphics/files/PixelRows.h"

#include "graphics/files/QuantumCopy.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr int rowsPerBlock = 16;

void copyOut(const Magick::PixelPacket *pixels, std::size_t count, Image8 &rows)
{
    copySamples8Out(pixels, count, rows.samples.data(), false);
}

void copyOut(const Magick::PixelPacket *pixels, std::size_t count, Image16 &rows)
{
    copySamples16Out(pixels, count, rows.samples.data(), false);
}

void copyIn(const Image8 &rows, std::size_t count, Magick::PixelPacket *pixels)
{
    copySpreadSamples8In(rows.samples.data(), count, pixels);
}

void copyIn(const Image16 &rows, std::size_t count, Magick::PixelPacket *pixels)
{
    copySamples16In(rows.samples.data(), count, pixels, false);
}

template <typename Sample>
void transformBlocks(Magick::PixelPacket *pixels, int width, int height, const RowsTransform &transform)
{
    Image block = Raster<Sample>(width, rowsPerBlock);
    for (int row = 0; row < height; row += rowsPerBlock) {
        const int rows = std::min(rowsPerBlock, height - row);
        if (rows < rowsPerBlock) {
            block = Raster<Sample>(width, rows);
        }
        const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(rows);
        copyOut(pixels, count, std::get<Raster<Sample>>(block));
        transform(block, row);
        copyIn(std::get<Raster<Sample>>(block), count, pixels);
        pixels += count;
    }
}

} // namespace

void transformPixelRows(Magick::PixelPacket *pixels, int width, int height, bool sixteenBit,
                        const RowsTransform &transform)
{
    if (sixteenBit) {
        transformBlocks<std::uint16_t>(pixels, width, height, transform);
    } else {
        transformBlocks<std::uint8_t>(pixels, width, height, transform);
    }
}

} // namespace grisal::graphics
