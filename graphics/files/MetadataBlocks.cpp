// SPDX-License-Identifier: MIT
#include "graphics/files/MetadataBlocks.h"

#include "graphics/files/PngChunks.h"
#include "graphics/files/TiffMetadata.h"

#include <QByteArrayView>
#include <QtEndian>

#include <cstdint>

namespace grisal::graphics
{

namespace
{

constexpr qsizetype maxMetadata = 16 << 20;

// A JPEG file consists of segments: two bytes of marker, the length of the rest, the contents.
constexpr QByteArrayView jpegStart{"\xff\xd8"};
constexpr QByteArrayView jpegEnd{"\xff\xd9"};

constexpr std::uint32_t maxExif = 1 << 19;
/// The signature and the first chunk, which contains the size of the image.
constexpr qsizetype pngStartSize = signatureLength + pngChunkFrameSize + 13;

bool insertJpegMetadata(const OpenFile &file, QByteArrayView metadata)
{
    const qsizetype frame = jpegStart.size() + jpegEnd.size();
    const QByteArray head = file.bytesAt(0, 6);
    if (head.size() < 6 || metadata.size() < frame) {
        return false;
    }
    // The JFIF segment has to be the first one.
    const bool isJfif = head.mid(2, 2) == "\xff\xe0";
    const std::uint64_t offset =
        isJfif ? std::uint64_t{4} + qFromBigEndian<std::uint16_t>(head.constData() + 4) : jpegStart.size();
    return file.insert(offset, metadata.sliced(jpegStart.size(), metadata.size() - frame));
}

bool isMetadataChunk(const PngChunk &chunk)
{
    const bool isText = chunk.kind == "tEXt" || chunk.kind == "zTXt" || chunk.kind == "iTXt";
    return chunk.kind == "eXIf" || chunk.kind == "iCCP" ||
           (isText && (chunk.start.startsWith("Raw profile type ") || chunk.start.startsWith("XML:com.adobe.xmp")));
}

MetadataBlocks extractPngMetadata(const OpenFile &file)
{
    MetadataBlocks blocks{file.bytesAt(0, pngStartSize)};
    visitPngChunks(file, [&](const PngChunk &chunk) {
        if (isMetadataChunk(chunk)) {
            const std::uint64_t most = chunk.kind == "eXIf" ? maxExif : maxMetadata;
            const bool fits =
                chunk.size() + static_cast<std::uint64_t>(blocks.file.size()) <= maxMetadata && chunk.size() <= most;
            blocks.file += fits ? file.bytesAt(chunk.offset, static_cast<qsizetype>(chunk.size())) : QByteArray();
            blocks.complete = blocks.complete && fits;
        }
        return true;
    });
    blocks.file += pngChunk("IEND", {});
    return blocks;
}

bool insertPngMetadata(const OpenFile &file, QByteArrayView metadata)
{
    const qsizetype frame = pngStartSize + pngChunkFrameSize;
    return metadata.size() >= frame && file.size() >= pngStartSize &&
           file.insert(pngStartSize, metadata.sliced(pngStartSize, metadata.size() - frame));
}

} // namespace

MetadataBlocks extractMetadata(const OpenFile &file, ImageFormat format)
{
    switch (format) {
    case ImageFormat::Jpeg:
        break;
    case ImageFormat::Png:
        return extractPngMetadata(file);
    case ImageFormat::Tiff:
        return extractTiffMetadata(file);
    }
    return {};
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
        return jpegStart.toByteArray() + jpegEnd.toByteArray();
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
