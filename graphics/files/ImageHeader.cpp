// SPDX-License-Identifier: MIT
#include "graphics/files/ImageHeader.h"

#include "graphics/files/JpegSegments.h"
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

constexpr std::uint64_t coefficientSize = 2;

/// From a start of frame: bits per sample, height, width, number of components.
std::optional<ImageHeader> frameHeader(const OpenFile &file, const JpegSegment &segment, bool isProgressive)
{
    constexpr int size = 6;
    const QByteArray frame = file.bytesAt(segment.offset, size);
    if (frame.size() < size) {
        return std::nullopt;
    }
    ImageHeader header;
    header.isJpeg = true;
    header.bitsPerSample = static_cast<std::uint8_t>(frame[0]);
    header.height = bigEndianAt<std::uint16_t>(frame, 1);
    header.width = bigEndianAt<std::uint16_t>(frame, 3);
    header.samplesPerPixel = static_cast<std::uint8_t>(frame[5]);
    header.decoderBytesPerPixel =
        isProgressive ? coefficientSize * static_cast<std::uint32_t>(header.samplesPerPixel) : 0;
    return header;
}

// A file with a scan for each component is decoded like a progressive one.
std::optional<ImageHeader> jpegHeader(const OpenFile &file)
{
    std::optional<ImageHeader> header;
    visitJpegSegments(file, [&](const JpegSegment &segment) {
        if (segment.isStartOfFrame() && !header) {
            header = frameHeader(file, segment, segment.marker % 4 == 2);
        }
        const QByteArray components = segment.isScan() && header ? file.bytesAt(segment.offset, 1) : QByteArray();
        if (!components.isEmpty() && static_cast<std::uint8_t>(components[0]) < header->samplesPerPixel) {
            header->decoderBytesPerPixel = coefficientSize * static_cast<std::uint32_t>(header->samplesPerPixel);
        }
    });
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
