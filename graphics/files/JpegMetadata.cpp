// SPDX-License-Identifier: MIT
#include "graphics/files/JpegMetadata.h"

#include "graphics/files/PhotoshopBlocks.h"
#include "graphics/files/TiffMetadata.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

namespace grisal::graphics
{

namespace
{

// A JPEG file consists of segments: two bytes of marker, the length of the rest, the contents.
constexpr qsizetype startSize = 2;
constexpr qsizetype endSize = 2;

constexpr int maxSegments = 20'000;
/// Photoshop splits its blocks among segments.
constexpr int maxPhotoshopSegments = 64;

constexpr QByteArrayView exifStart{"Exif\0\0", 6};
constexpr QByteArrayView xmpStart{"http://ns.adobe.com/xap/1.0/\0", 29};
constexpr QByteArrayView photoshopStart{"Photoshop 3.0\0", 14};
constexpr QByteArrayView profileStart{"ICC_PROFILE\0", 12};
/// The number of the segment and the number of segments.
constexpr qsizetype profileHeadSize = profileStart.size() + 2;

enum class Marker : std::uint8_t {
    Standalone = 0x01,
    FirstRestart = 0xd0,
    Start = 0xd8,
    End = 0xd9,
    Scan = 0xda,
    App1 = 0xe1,
    App2 = 0xe2,
    App13 = 0xed,
};

struct Segment {
    Marker marker = Marker::End;
    std::uint64_t offset = 0; ///< of the contents
    qsizetype length = 0;     ///< of the contents
};

/// The offset of the marker at an offset, behind any padding.
std::uint64_t markerBehindPadding(const OpenFile &file, std::uint64_t offset)
{
    constexpr qsizetype blockSize = 1 << 16;
    for (qsizetype size = 4;; size = blockSize) {
        const QByteArray block = file.bytesAt(offset, size);
        const auto end = std::find_if(block.begin(), block.end(), [](char c) { return c != '\xff'; });
        offset += static_cast<std::uint64_t>(end - block.begin());
        if (end != block.end() || block.isEmpty()) {
            return offset;
        }
    }
}

/// The segment at an offset; none before the pixels and at bytes that are no segment.
std::optional<Segment> segmentAt(const OpenFile &file, std::uint64_t offset)
{
    const std::uint64_t start = markerBehindPadding(file, offset);
    const QByteArray head = file.bytesAt(start, 3);
    if (start == offset || head.size() < 3) {
        return std::nullopt;
    }
    const auto marker = static_cast<Marker>(head.at(0));
    if (marker == Marker::Standalone || (marker >= Marker::FirstRestart && marker < Marker::Start)) {
        return Segment{marker, start + 1, 0};
    }
    const int length = qFromBigEndian<std::uint16_t>(head.constData() + 1);
    if (marker == Marker::Scan || marker == Marker::End || length < 2) {
        return std::nullopt;
    }
    return Segment{marker, start + 3, length - 2};
}

/// Calls `visit` with each segment before the pixels. Returns whether there were few enough to visit all.
bool visitSegments(const OpenFile &file, const std::function<void(const Segment &)> &visit)
{
    std::uint64_t offset = startSize;
    for (int i = 0; i < maxSegments; ++i) {
        const std::optional<Segment> segment = segmentAt(file, offset);
        if (!segment) {
            return true;
        }
        visit(*segment);
        offset = segment->offset + static_cast<std::uint64_t>(segment->length);
    }
    return false;
}

/// Collects the metadata of segments. Of several blocks of a kind the first one counts.
class JpegBlocks
{
public:
    explicit JpegBlocks(const OpenFile &file) : m_file(file) {}

    void add(const Segment &segment)
    {
        const QByteArray start = m_file.bytesAt(segment.offset, std::min(segment.length, xmpStart.size()));
        if (segment.marker == Marker::App1 && start.startsWith(exifStart) && m_exif.isEmpty()) {
            m_exif = contentsOf(segment).mid(exifStart.size());
        } else if (segment.marker == Marker::App1 && start.startsWith(xmpStart) && m_blocks.xmp.isEmpty()) {
            m_blocks.xmp = contentsOf(segment).mid(xmpStart.size());
        } else if (segment.marker == Marker::App2 && start.startsWith(profileStart)) {
            addProfile(segment);
        } else if (segment.marker == Marker::App13 && start.startsWith(photoshopStart)) {
            addPhotoshop(segment);
        }
    }

    MetadataBlocks result()
    {
        if (!m_exif.isEmpty()) {
            const MetadataBlocks inner = extractExif(m_exif);
            m_blocks.exif = inner.exif;
            m_blocks.complete = m_blocks.complete && inner.complete;
        }
        m_blocks.iptc = iptcInPhotoshopBlocks(m_photoshop);
        for (const auto &[number, part] : m_profile) {
            m_blocks.profile += part;
        }
        return m_blocks;
    }

private:
    QByteArray contentsOf(const Segment &segment) const { return m_file.bytesAt(segment.offset, segment.length); }

    void addProfile(const Segment &segment)
    {
        m_profileSize += segment.length;
        if (m_profileSize > maxProfileSize) {
            m_blocks.complete = false;
            return;
        }
        const QByteArray contents = contentsOf(segment);
        if (contents.size() >= profileHeadSize) {
            m_profile.try_emplace(static_cast<std::uint8_t>(contents.at(profileStart.size())),
                                  contents.mid(profileHeadSize));
        }
    }

    void addPhotoshop(const Segment &segment)
    {
        if (!m_photoshop.isEmpty() && arePhotoshopBlocksComplete(m_photoshop)) {
            return;
        }
        if (++m_photoshopSegments > maxPhotoshopSegments) {
            m_blocks.complete = false;
            return;
        }
        m_photoshop += contentsOf(segment).mid(photoshopStart.size());
    }

    const OpenFile &m_file;
    MetadataBlocks m_blocks;
    QByteArray m_exif;
    QByteArray m_photoshop;
    int m_photoshopSegments = 0;
    std::map<int, QByteArray> m_profile; ///< by the number of the segment
    qsizetype m_profileSize = 0;
};

} // namespace

MetadataBlocks extractJpegMetadata(const OpenFile &file)
{
    JpegBlocks blocks(file);
    const bool all = visitSegments(file, [&](const Segment &segment) { blocks.add(segment); });
    MetadataBlocks result = blocks.result();
    result.complete = result.complete && all;
    return result;
}

bool insertJpegMetadata(const OpenFile &file, const QByteArray &metadata)
{
    const qsizetype frame = startSize + endSize;
    const QByteArray head = file.bytesAt(0, 6);
    if (head.size() < 6 || metadata.size() < frame) {
        return false;
    }
    // The JFIF segment has to be the first one.
    const bool isJfif = head.mid(2, 2) == "\xff\xe0";
    const std::uint64_t offset =
        isJfif ? std::uint64_t{4} + qFromBigEndian<std::uint16_t>(head.constData() + 4) : startSize;
    return file.insert(offset, QByteArrayView(metadata).sliced(startSize, metadata.size() - frame));
}

} // namespace grisal::graphics
