// SPDX-License-Identifier: MIT
#include "graphics/files/JpegMetadata.h"

#include "graphics/files/JpegSegments.h"
#include "graphics/files/PhotoshopBlocks.h"
#include "graphics/files/TiffMetadata.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <map>

namespace grisal::graphics
{

namespace
{

constexpr qsizetype startSize = 2;
constexpr qsizetype endSize = 2;

/// Photoshop splits its blocks among segments.
constexpr int maxPhotoshopSegments = 64;

constexpr QByteArrayView xmpStart{"http://ns.adobe.com/xap/1.0/\0", 29};
constexpr QByteArrayView photoshopStart{"Photoshop 3.0\0", 14};
constexpr QByteArrayView profileStart{"ICC_PROFILE\0", 12};
/// The number of the segment and the number of segments.
constexpr qsizetype profileHeadSize = profileStart.size() + 2;

constexpr std::uint8_t app1 = 0xe1;
constexpr std::uint8_t app2 = 0xe2;
constexpr std::uint8_t app13 = 0xed;

/// Collects the metadata of segments. Of several blocks of a kind the first one counts.
class JpegBlocks
{
public:
    explicit JpegBlocks(const OpenFile &file) : m_file(file) {}

    void add(const JpegSegment &segment)
    {
        const QByteArray start = m_file.bytesAt(segment.offset, std::min(segment.length, xmpStart.size()));
        if (segment.marker == app1 && start.startsWith(exifSignature) && m_exif.isEmpty()) {
            m_exif = contentsOf(segment).mid(exifSignature.size());
        } else if (segment.marker == app1 && start.startsWith(xmpStart) && m_blocks.xmp.isEmpty()) {
            m_blocks.xmp = contentsOf(segment).mid(xmpStart.size());
        } else if (segment.marker == app2 && start.startsWith(profileStart)) {
            addProfile(segment);
        } else if (segment.marker == app13 && start.startsWith(photoshopStart)) {
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
    QByteArray contentsOf(const JpegSegment &segment) const { return m_file.bytesAt(segment.offset, segment.length); }

    void addProfile(const JpegSegment &segment)
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

    void addPhotoshop(const JpegSegment &segment)
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
    const bool all = visitJpegSegments(file, [&](const JpegSegment &segment) { blocks.add(segment); });
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
