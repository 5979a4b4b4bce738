// SPDX-License-Identifier: MIT
#include "graphics/files/ImageHeader.h"

#include "graphics/files/TiffHeader.h"

#include <QtEndian>

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr int bitsPerByte = 8;

template <typename Number>
Number bigEndianAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromBigEndian<Number>(bytes.constData() + offset);
}

/// More segments or more bytes between two of them are invalid.
constexpr int maxJpegSegments = 10'000;
constexpr std::uint64_t maxBytesBetweenSegments = 1 << 20;
constexpr qsizetype blockSize = 1 << 12;

constexpr std::uint8_t markerStart = 0xff;
constexpr std::uint8_t startOfScan = 0xda;
constexpr std::uint64_t coefficientSize = 2;

/// A segment of a JPEG file: its marker and the offset of its length.
struct JpegSegment {
    std::uint8_t marker = 0;
    std::uint64_t offset = 0;
};

bool isStartOfFrame(std::uint8_t marker)
{
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

/// Whether a segment follows the marker: not the case for 0, which is no marker, and for the markers without one.
bool hasSegment(std::uint8_t marker)
{
    return marker > 1 && marker != markerStart && (marker < 0xd0 || marker > 0xd9);
}

/// The first segment at or behind an offset; like libjpeg, skips other bytes.
std::optional<JpegSegment> nextJpegSegment(const OpenFile &file, std::uint64_t start)
{
    for (std::uint64_t offset = start; offset < start + maxBytesBetweenSegments; offset += blockSize - 1) {
        const QByteArray block = file.bytesAt(offset, blockSize);
        for (qsizetype i = 0; i + 1 < block.size(); ++i) {
            const auto marker = static_cast<std::uint8_t>(block[i + 1]);
            if (static_cast<std::uint8_t>(block[i]) == markerStart && hasSegment(marker)) {
                return JpegSegment{marker, offset + static_cast<std::uint64_t>(i) + 2};
            }
        }
        if (block.size() < blockSize) {
            break;
        }
    }
    return std::nullopt;
}

/// From a start of frame: length, bits per sample, height, width, number of components.
std::optional<ImageHeader> frameHeader(const OpenFile &file, const JpegSegment &segment, bool isProgressive)
{
    constexpr int size = 8;
    const QByteArray frame = file.bytesAt(segment.offset, size);
    if (frame.size() < size) {
        return std::nullopt;
    }
    ImageHeader header;
    header.isJpeg = true;
    header.bitsPerSample = static_cast<std::uint8_t>(frame[2]);
    header.height = bigEndianAt<std::uint16_t>(frame, 3);
    header.width = bigEndianAt<std::uint16_t>(frame, 5);
    header.samplesPerPixel = static_cast<std::uint8_t>(frame[7]);
    header.decoderBytesPerPixel =
        isProgressive ? coefficientSize * static_cast<std::uint32_t>(header.samplesPerPixel) : 0;
    return header;
}

// A file with a scan for each component is decoded like a progressive one.
std::optional<ImageHeader> jpegHeader(const OpenFile &file)
{
    std::optional<ImageHeader> header;
    std::uint64_t offset = 2;
    for (int i = 0; i < maxJpegSegments; ++i) {
        const std::optional<JpegSegment> segment = nextJpegSegment(file, offset);
        const QByteArray start = segment ? file.bytesAt(segment->offset, 3) : QByteArray();
        if (start.size() < 3) {
            break;
        }
        if (isStartOfFrame(segment->marker) && !header) {
            header = frameHeader(file, *segment, segment->marker % 4 == 2);
        }
        if (segment->marker == startOfScan) {
            if (header && static_cast<std::uint8_t>(start[2]) < header->samplesPerPixel) {
                header->decoderBytesPerPixel = coefficientSize * static_cast<std::uint32_t>(header->samplesPerPixel);
            }
            break;
        }
        offset = segment->offset + bigEndianAt<std::uint16_t>(start, 0);
    }
    return header;
}

int pngSamplesPerPixel(int colourType)
{
    switch (colourType) {
    case 2:
        return 3;
    case 4:
        return 2;
    case 6:
        return 4;
    default:
        return 1; // grey or palette
    }
}

/// From IHDR, the first chunk: width, height, bits per sample, colour type, two methods, interlacing.
std::optional<ImageHeader> pngHeader(const OpenFile &file)
{
    constexpr int size = 17;
    const QByteArray chunk = file.bytesAt(signatureLength + 4, size);
    if (chunk.size() < size || !chunk.startsWith("IHDR")) {
        return std::nullopt;
    }
    ImageHeader header;
    header.width = bigEndianAt<std::uint32_t>(chunk, 4);
    header.height = bigEndianAt<std::uint32_t>(chunk, 8);
    header.bitsPerSample = static_cast<std::uint8_t>(chunk[12]);
    header.samplesPerPixel = pngSamplesPerPixel(chunk[13]);
    const bool isInterlaced = chunk[16] != 0;
    const int bytesPerSample = header.bitsPerSample > bitsPerByte ? 2 : 1;
    header.decoderBytesPerPixel =
        isInterlaced ? static_cast<std::uint32_t>(bytesPerSample * header.samplesPerPixel) : 0;
    return header;
}

} // namespace

std::optional<ImageHeader> readImageHeader(const OpenFile &file, ImageFormat format)
{
    switch (format) {
    case ImageFormat::Jpeg:
        return jpegHeader(file);
    case ImageFormat::Png:
        return pngHeader(file);
    case ImageFormat::Tiff:
        return readTiffHeader(file);
    }
    return std::nullopt;
}

} // namespace grisal::graphics
