// SPDX-License-Identifier: MIT
#include "graphics/files/MetadataBlocks.h"

#include "graphics/files/JpegMetadata.h"
#include "graphics/files/PngChunks.h"
#include "graphics/files/PngMetadata.h"
#include "graphics/files/TiffMetadata.h"
#include "graphics/files/XmpLimits.h"

namespace grisal::graphics
{

namespace
{

/// Each IPTC record starts with this byte.
constexpr char iptcMarker = '\x1c';
constexpr qsizetype maxIptcRecords = 10'000;

MetadataBlocks blocksIn(const OpenFile &file, ImageFormat format)
{
    switch (format) {
    case ImageFormat::Jpeg:
        return extractJpegMetadata(file);
    case ImageFormat::Png:
        return extractPngMetadata(file);
    case ImageFormat::Tiff:
        return extractTiffMetadata(file);
    }
    return {};
}

bool isWithinIptcLimits(const QByteArray &iptc)
{
    return iptc.size() <= maxIptcSize && iptc.count(iptcMarker) <= maxIptcRecords;
}

void removeUnless(bool isWithinLimits, QByteArray &block, bool &complete)
{
    if (!isWithinLimits) {
        block.clear();
        complete = false;
    }
}

} // namespace

MetadataBlocks extractMetadata(const OpenFile &file, ImageFormat format)
{
    MetadataBlocks blocks = blocksIn(file, format);
    removeUnless(isWithinIptcLimits(blocks.iptc), blocks.iptc, blocks.complete);
    removeUnless(blocks.xmp.isEmpty() || isWithinXmpLimits(blocks.xmp), blocks.xmp, blocks.complete);
    return blocks;
}

bool insertMetadata(const OpenFile &file, ImageFormat format, const QByteArray &metadata)
{
    switch (format) {
    case ImageFormat::Jpeg:
        return insertJpegMetadata(file, metadata);
    case ImageFormat::Png:
        return insertPngMetadata(file, metadata);
    case ImageFormat::Tiff:
        return insertTiffMetadata(file, metadata);
    }
    return false;
}

QByteArray emptyImageFile(ImageFormat format)
{
    switch (format) {
    case ImageFormat::Jpeg:
        return QByteArray("\xff\xd8\xff\xd9");
    case ImageFormat::Png:
        // One pixel, 8 bits of grey.
        return QByteArray("\x89PNG\r\n\x1a\n") + pngChunk("IHDR", QByteArray("\0\0\0\1\0\0\0\1\x08\0\0\0\0", 13)) +
               pngChunk("IEND", {});
    case ImageFormat::Tiff:
        return {};
    }
    return {};
}

} // namespace grisal::graphics
