// SPDX-License-Identifier: MIT
#include "graphics/files/TiffMetadata.h"

#include "graphics/files/MakerNote.h"
#include "graphics/files/TiffDirectory.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <map>

namespace grisal::graphics
{

namespace
{

/// The limit of all values and directories that are copied: a directory may contain itself.
constexpr std::uint64_t maxMetadata = 8 << 20;
/// The limit of the entries of all directories: Exiv2 decodes and encodes 16,000 in a tenth of a second.
constexpr std::size_t maxEntries = 4'000;
/// Limits for maker's notes, since these may refer to any offset in the copy any number of times: the end of the note,
/// and the size of a copy with a note.
constexpr std::uint64_t maxMakerNoteEnd = 1 << 17;
constexpr qsizetype maxWithMakerNote = 1 << 19;

bool isDirectory(const TiffEntry &entry)
{
    return entry.has(TiffTag::ExifDirectory) || entry.has(TiffTag::GpsDirectory) ||
           entry.has(TiffTag::InteroperabilityDirectory);
}

/// Copies the directories of a TIFF structure with their values, except those that describe the pixels, and the other
/// blocks of its first directory. Those of a block in memory are appended to the block, where the values stay.
class TiffCopy
{
public:
    using Source = std::function<QByteArray(std::uint64_t offset, qsizetype count)>;

    TiffCopy(Source source, const TiffFileHeader &header, bool withMakerNote)
        : m_source(std::move(source)), m_order(header.order), m_copy(m_source(0, 4) + QByteArray(4, '\0'))
    {
        if (withMakerNote) {
            copyMakerNote(makerNoteIn(header.directoryOffset));
        }
        appendDirectories(header.directoryOffset);
    }

    TiffCopy(const QByteArray &block, const TiffFileHeader &header)
        : m_source([&block](std::uint64_t offset, qsizetype count) {
              return block.mid(static_cast<qsizetype>(offset), count);
          }),
          m_order(header.order), m_copy(block), m_isBlock(true)
    {
        m_makerNote = offsetIn(makerNoteIn(header.directoryOffset).content);
        appendDirectories(header.directoryOffset);
    }

    MetadataBlocks result() const
    {
        MetadataBlocks blocks = m_blocks;
        blocks.exif = m_copy;
        return blocks;
    }

private:
    std::uint32_t offsetIn(const QByteArray &content) const
    {
        return content.size() == 4 ? m_order.get<std::uint32_t>(content.constData()) : 0;
    }
    std::vector<TiffEntry> directoryAt(std::uint32_t from) const
    {
        return decodeDirectory(m_source(from, maxTiffDirectorySize), m_order);
    }
    std::uint32_t end() const { return static_cast<std::uint32_t>(m_copy.size()); }

    /// The first maker's note; an entry of no values without one, or if Exiv2 must not decode it.
    TiffEntry makerNoteIn(std::uint32_t start) const
    {
        for (const TiffEntry &outer : directoryAt(start)) {
            if (!outer.has(TiffTag::ExifDirectory)) {
                continue;
            }
            for (const TiffEntry &entry : directoryAt(offsetIn(outer.content))) {
                if (entry.has(TiffTag::MakerNote) && !entry.isInline() && offsetIn(entry.content) >= tiffHeaderSize) {
                    const bool isExcessive =
                        entry.size() <= maxExifSize &&
                        repeatsTags(m_source(offsetIn(entry.content), static_cast<qsizetype>(entry.size())));
                    return isExcessive ? TiffEntry() : entry;
                }
            }
        }
        return {};
    }

    // A maker's note contains offsets from the start of the file: it has to stay at its own.
    void copyMakerNote(const TiffEntry &note)
    {
        const std::uint32_t from = offsetIn(note.content);
        if (from != 0 && from + note.size() <= maxMakerNoteEnd) {
            m_copy += QByteArray(qsizetype{from} - m_copy.size(), '\0');
            m_copy += m_source(from, static_cast<qsizetype>(note.size()));
            m_makerNote = from;
        }
    }

    void appendDirectories(std::uint32_t start)
    {
        const std::uint32_t copied = copyDirectory(start, 0);
        m_order.put(copied, m_copy.data() + 4);
    }

    /// Returns the offset of the copy.
    std::uint32_t copyDirectory(std::uint32_t from, int depth)
    {
        constexpr int maxDepth = 2; // interoperability directory in the Exif directory in the first one
        std::vector<TiffEntry> entries;
        for (TiffEntry &entry : countedDirectoryAt(from)) {
            if (depth == 0 && (describesPixels(entry.tag) || extractBlock(entry))) {
                continue;
            }
            if (isDirectory(entry) ? depth < maxDepth && copyInner(entry, depth) : copyValues(entry)) {
                entries.push_back(std::move(entry));
            }
        }
        align();
        const std::uint32_t copied = end();
        m_copy += encodeDirectory(entries, m_order);
        return copied;
    }

    /// Empty if it exceeds a limit.
    std::vector<TiffEntry> countedDirectoryAt(std::uint32_t from)
    {
        if (!reserve(maxTiffDirectorySize)) {
            return {};
        }
        const QByteArray count = m_source(from, 2);
        std::vector<TiffEntry> entries = directoryAt(from);
        m_entries += entries.size();
        const bool isTooLong = count.size() == 2 && m_order.get<std::uint16_t>(count.constData()) > maxTiffEntries;
        if (isTooLong || m_entries > maxEntries) {
            m_blocks.complete = false;
            return {};
        }
        return entries;
    }

    /// Returns whether the entry is another block of metadata.
    bool extractBlock(const TiffEntry &entry)
    {
        if (entry.has(TiffTag::Xmp)) {
            extractValues(entry, maxXmpSize, m_blocks.xmp);
        } else if (entry.has(TiffTag::Iptc)) {
            extractValues(entry, maxIptcSize, m_blocks.iptc);
        } else if (entry.has(TiffTag::Profile)) {
            extractValues(entry, maxProfileSize, m_blocks.profile);
        } else {
            return false;
        }
        return true;
    }

    void extractValues(const TiffEntry &entry, qsizetype most, QByteArray &block)
    {
        if (entry.size() > static_cast<std::uint64_t>(most)) {
            m_blocks.complete = false;
        } else if (block.isEmpty() && !entry.isInline()) {
            block = m_source(offsetIn(entry.content), static_cast<qsizetype>(entry.size()));
        }
    }

    bool copyInner(TiffEntry &entry, int depth)
    {
        entry.content = m_order.bytesOf(copyDirectory(offsetIn(entry.content), depth + 1));
        return true;
    }

    bool copyValues(TiffEntry &entry)
    {
        if (entry.isInline()) {
            return true;
        }
        if (entry.has(TiffTag::MakerNote)) {
            return keepMakerNote(offsetIn(entry.content));
        }
        if (!reserve(entry.size())) {
            return false;
        }
        const QByteArray values = m_source(offsetIn(entry.content), static_cast<qsizetype>(entry.size()));
        if (!m_isBlock) {
            align();
            entry.content = m_order.bytesOf(end());
            m_copy += values;
        }
        return values.size() == static_cast<qsizetype>(entry.size());
    }

    /// Only one entry may refer to the note, since Exiv2 decodes it for each of them.
    bool keepMakerNote(std::uint32_t offset)
    {
        const bool isKept = m_makerNote != 0 && m_makerNote == offset;
        m_makerNote = isKept ? 0 : m_makerNote;
        m_blocks.complete = m_blocks.complete && isKept;
        return isKept;
    }

    /// Counts that many bytes if they are within the limit; otherwise the copy is incomplete.
    bool reserve(std::uint64_t size)
    {
        const bool fits = m_taken + size <= maxMetadata;
        m_taken += fits ? size : 0;
        m_blocks.complete = m_blocks.complete && fits;
        return fits;
    }

    void align() { m_copy += QByteArray(m_copy.size() % 2, '\0'); }

    Source m_source;
    TiffByteOrder m_order;
    QByteArray m_copy;
    MetadataBlocks m_blocks; ///< those besides the copy
    std::uint64_t m_taken = 0;
    std::size_t m_entries = 0;
    std::uint32_t m_makerNote = 0; ///< the offset; 0 without a note, and once it has an entry
    bool m_isBlock = false;
};

/// The offsets of the strips, increased by a distance.
QByteArray shiftedStripOffsets(const OpenFile &file, TiffByteOrder order, const TiffEntry &entry,
                               std::uint32_t distance)
{
    const auto size = static_cast<qsizetype>(entry.size());
    const qsizetype each = size / entry.count;
    const QByteArray offsets =
        entry.isInline() ? entry.content : file.bytesAt(order.get<std::uint32_t>(entry.content.constData()), size);
    QByteArray moved;
    for (qsizetype at = 0; at + each <= std::min(size, offsets.size()); at += each) {
        const char *bytes = offsets.constData() + at;
        const std::uint32_t strip = each == 2 ? order.get<std::uint16_t>(bytes) : order.get<std::uint32_t>(bytes);
        moved += order.bytesOf(strip + distance);
    }
    return moved;
}

using Directory = std::map<std::uint16_t, TiffEntry>;

Directory byTag(const std::vector<TiffEntry> &entries)
{
    Directory directory;
    for (const TiffEntry &entry : entries) {
        directory[entry.tag] = entry;
    }
    return directory;
}

std::vector<TiffEntry> inOrder(const Directory &directory)
{
    std::vector<TiffEntry> entries;
    for (const auto &[tag, entry] : directory) {
        entries.push_back(entry);
    }
    return entries;
}

/// Replaces the header of an image file: `metadata`, the offsets of the strips, and a directory with the entries of
/// both files.
QByteArray encodeFront(const OpenFile &file, const TiffFirstDirectory &first, const QByteArray &metadata,
                       const TiffFileHeader &metadataHeader)
{
    const TiffByteOrder order = first.header.order;
    Directory pixels = byTag(first.entries);
    Directory merged =
        byTag(decodeDirectory(metadata.mid(metadataHeader.directoryOffset, maxTiffDirectorySize), order));
    const auto strips = pixels.find(static_cast<std::uint16_t>(TiffTag::StripOffsets));
    if (strips == pixels.end()) {
        return {};
    }
    QByteArray front = metadata + QByteArray(metadata.size() % 2, '\0');
    Directory all = merged;
    all.insert(pixels.begin(), pixels.end());
    const auto stripOffsets = static_cast<std::uint32_t>(front.size());
    const auto directory = stripOffsets + strips->second.count * 4;
    const auto distance =
        directory + static_cast<std::uint32_t>(encodeDirectory(inOrder(all), order).size()) - tiffHeaderSize;
    front += shiftedStripOffsets(file, order, strips->second, distance);
    if (front.size() != directory || file.size() + distance > std::numeric_limits<std::uint32_t>::max()) {
        return {};
    }
    for (auto &[tag, entry] : pixels) {
        if (!entry.isInline()) {
            entry.content = order.bytesOf(order.get<std::uint32_t>(entry.content.constData()) + distance);
        }
    }
    strips->second.type = static_cast<std::uint16_t>(TiffType::Long);
    strips->second.content = strips->second.count == 1 ? front.last(4) : order.bytesOf(stripOffsets);
    merged.insert(pixels.begin(), pixels.end());
    order.put(directory, front.data() + 4);
    return front + encodeDirectory(inOrder(merged), order);
}

} // namespace

MetadataBlocks extractTiffMetadata(const OpenFile &file)
{
    const std::optional<TiffFileHeader> header = decodeTiffFileHeader(file.bytesAt(0, tiffHeaderSize));
    if (!header) {
        return {{}, {}, {}, {}, false};
    }
    const auto source = [&file](std::uint64_t offset, qsizetype count) { return file.bytesAt(offset, count); };
    MetadataBlocks blocks = TiffCopy(source, *header, true).result();
    if (blocks.exif.size() > maxWithMakerNote) {
        blocks = TiffCopy(source, *header, false).result();
    }
    blocks.xmp = blocks.xmp.mid(std::max<qsizetype>(blocks.xmp.indexOf('<'), 0));
    return blocks;
}

MetadataBlocks extractExif(const QByteArray &block)
{
    MetadataBlocks blocks{{}, {}, {}, {}, false};
    const std::optional<TiffFileHeader> header = decodeTiffFileHeader(block);
    if (header && block.size() <= qsizetype{maxExifSize}) {
        const MetadataBlocks all = TiffCopy(block, *header).result();
        blocks.exif = all.exif;
        blocks.complete = all.complete;
    }
    return blocks;
}

// The small file is put in front of the image file, so that its offsets stay valid; the two directories are merged, and
// everything behind the header of the image file moves back.
bool insertTiffMetadata(const OpenFile &file, const QByteArray &metadata)
{
    const std::optional<TiffFirstDirectory> first = readFirstDirectory(file);
    const std::optional<TiffFileHeader> header = decodeTiffFileHeader(metadata);
    if (!first || !header || !metadata.startsWith(file.bytesAt(0, 4))) {
        return false;
    }
    const QByteArray front = encodeFront(file, *first, metadata, *header);
    if (front.isEmpty() || !file.insert(tiffHeaderSize, QByteArrayView(front).sliced(tiffHeaderSize))) {
        return false;
    }
    file.overwrite(0, QByteArrayView(front).first(tiffHeaderSize));
    return true;
}

} // namespace grisal::graphics
