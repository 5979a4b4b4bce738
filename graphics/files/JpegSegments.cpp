// SPDX-License-Identifier: MIT
#include "graphics/files/JpegSegments.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace grisal::graphics
{

namespace
{

constexpr std::uint64_t startOfImageSize = 2;
constexpr int maxSegments = 20'000;
constexpr std::uint64_t maxBytesBetweenSegments = 1 << 20;
constexpr std::uint8_t markerStart = 0xff;

/// Whether a segment follows the marker: not the case for 0, which is no marker, and for the markers without one.
bool hasSegment(std::uint8_t marker)
{
    return marker > 1 && marker != markerStart && (marker < 0xd0 || marker > 0xd9);
}

std::optional<JpegSegment> segmentAt(const OpenFile &file, std::uint64_t offset)
{
    constexpr qsizetype headSize = 4;
    const QByteArray head = file.bytesAt(offset, headSize);
    if (head.size() < headSize) {
        return std::nullopt;
    }
    const int length = qFromBigEndian<std::uint16_t>(head.constData() + 2);
    return JpegSegment{static_cast<std::uint8_t>(head[1]), offset + headSize, std::max(length - 2, 0)};
}

/// The first segment at or behind an offset.
std::optional<JpegSegment> nextSegment(const OpenFile &file, std::uint64_t start)
{
    qsizetype blockSize = 2;
    for (std::uint64_t offset = start; offset < start + maxBytesBetweenSegments;) {
        const QByteArray block = file.bytesAt(offset, blockSize);
        for (qsizetype i = 0; i + 1 < block.size(); ++i) {
            if (static_cast<std::uint8_t>(block[i]) == markerStart &&
                hasSegment(static_cast<std::uint8_t>(block[i + 1]))) {
                return segmentAt(file, offset + static_cast<std::uint64_t>(i));
            }
        }
        if (block.size() < blockSize) {
            break;
        }
        offset += static_cast<std::uint64_t>(blockSize) - 1;
        blockSize = 1 << 12;
    }
    return std::nullopt;
}

} // namespace

bool visitJpegSegments(const OpenFile &file, const std::function<void(const JpegSegment &)> &visit)
{
    std::uint64_t offset = startOfImageSize;
    for (int i = 0; i < maxSegments; ++i) {
        const std::optional<JpegSegment> segment = nextSegment(file, offset);
        if (!segment) {
            return true;
        }
        visit(*segment);
        if (segment->isScan()) {
            return true;
        }
        offset = segment->offset + static_cast<std::uint64_t>(segment->length);
    }
    return false;
}

} // namespace grisal::graphics
