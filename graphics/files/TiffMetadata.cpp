// SPDX-License-Identifier: MIT
#include "graphics/files/TiffMetadata.h"

#include "graphics/files/TiffDirectory.h"

#include <algorithm>
#include <limits>
#include <map>

namespace grisal::graphics
{

namespace
{

/// The limit of all values and directories that are copied: a directory may contain itself.
constexpr std::uint64_t maxMetadata = 8 << 20;
/// Limits for maker's notes, since these may refer to any offset in the copy any number of times: the end of the note,
/// and the size of a copy with a note.
constexpr std::uint64_t maxMakerNoteEnd = 1 << 17;
constexpr qsizetype maxWithMakerNote = 1 << 19;

bool is(const TiffEntry &entry, TiffTag tag)
{
    return entry.tag == static_cast<std::uint16_t>(tag);
}

bool isDirectory(const TiffEntry &entry)
{
    return is(entry, TiffTag::ExifDirectory) || is(entry, TiffTag::GpsDirectory) ||
           is(entry, TiffTag::InteroperabilityDirectory);
}

/// Copies the directories of a TIFF file with their values, except those that describe the pixels.
class TiffCopy
{
public:
    TiffCopy(const OpenFile &file, TiffByteOrder order, bool withMakerNote)
        : m_file(file), m_order(order), m_copy(file.bytesAt(0, 4) + QByteArray(4, '\0'))
    {
        const auto start = offsetIn(file.bytesAt(4, 4));
        if (withMakerNote) {
            copyMakerNote(start);
        }
        const std::uint32_t copied = copyDirectory(start, 0);
        m_order.put(copied, m_copy.data() + 4);
    }

    MetadataBlocks result() const { return {m_copy, m_complete}; }
    bool hasMakerNote() const { return m_hasMakerNote; }

private:
    std::uint32_t offsetIn(const QByteArray &content) const
    {
        return content.size() == 4 ? m_order.get<std::uint32_t>(content.constData()) : 0;
    }
    std::vector<TiffEntry> directoryAt(std::uint32_t from) const
    {
        return decodeDirectory(m_file.bytesAt(from, maxTiffDirectorySize), m_order);
    }
    std::uint32_t end() const { return static_cast<std::uint32_t>(m_copy.size()); }

    // A maker's note contains offsets from the start of the file: it has to stay at its own.
    void copyMakerNote(std::uint32_t start)
    {
        for (const TiffEntry &outer : directoryAt(start)) {
            if (!is(outer, TiffTag::ExifDirectory)) {
                continue;
            }
            for (const TiffEntry &entry : directoryAt(offsetIn(outer.content))) {
                const std::uint32_t from = offsetIn(entry.content);
                if (is(entry, TiffTag::MakerNote) && !entry.isInline() && from >= tiffHeaderSize &&
                    from + entry.size() <= maxMakerNoteEnd) {
                    m_copy += QByteArray(qsizetype{from} - m_copy.size(), '\0');
                    m_copy += m_file.bytesAt(from, static_cast<qsizetype>(entry.size()));
                    m_hasMakerNote = true;
                    return;
                }
            }
        }
    }

    /// Returns the offset of the copy.
    std::uint32_t copyDirectory(std::uint32_t from, int depth)
    {
        constexpr int maxDepth = 2; // interoperability directory in the Exif directory in the first one
        std::vector<TiffEntry> entries;
        const bool fits = reserve(maxTiffDirectorySize);
        for (TiffEntry &entry : fits ? directoryAt(from) : std::vector<TiffEntry>()) {
            if (depth == 0 && describesPixels(entry.tag)) {
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
        if (is(entry, TiffTag::MakerNote)) {
            m_complete = m_complete && m_hasMakerNote;
            return m_hasMakerNote;
        }
        if (!reserve(entry.size())) {
            return false;
        }
        const QByteArray values = m_file.bytesAt(offsetIn(entry.content), static_cast<qsizetype>(entry.size()));
        align();
        entry.content = m_order.bytesOf(end());
        m_copy += values;
        return values.size() == static_cast<qsizetype>(entry.size());
    }

    /// Counts that many bytes if they are within the limit; otherwise the copy is incomplete.
    bool reserve(std::uint64_t size)
    {
        const bool fits = m_taken + size <= maxMetadata;
        m_taken += fits ? size : 0;
        m_complete = m_complete && fits;
        return fits;
    }

    void align() { m_copy += QByteArray(m_copy.size() % 2, '\0'); }

    const OpenFile &m_file;
    TiffByteOrder m_order;
    QByteArray m_copy;
    std::uint64_t m_taken = 0;
    bool m_hasMakerNote = false;
    bool m_complete = true;
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

std::uint32_t directoryOffset(QByteArrayView file, TiffByteOrder order)
{
    return order.get<std::uint32_t>(file.data() + 4);
}

/// Replaces the header of an image file: `metadata`, the offsets of the strips, and a directory with the entries of
/// both files.
QByteArray encodeFront(const OpenFile &file, TiffByteOrder order, const QByteArray &header, const QByteArray &metadata)
{
    Directory pixels =
        byTag(decodeDirectory(file.bytesAt(directoryOffset(header, order), maxTiffDirectorySize), order));
    Directory merged =
        byTag(decodeDirectory(metadata.mid(directoryOffset(metadata, order), maxTiffDirectorySize), order));
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
    constexpr std::uint16_t longType = 4;
    strips->second.type = longType;
    strips->second.content = strips->second.count == 1 ? front.last(4) : order.bytesOf(stripOffsets);
    merged.insert(pixels.begin(), pixels.end());
    order.put(directory, front.data() + 4);
    return front + encodeDirectory(inOrder(merged), order);
}

} // namespace

MetadataBlocks extractTiffMetadata(const OpenFile &file)
{
    const std::optional<TiffByteOrder> order = tiffByteOrderOf(file.bytesAt(0, signatureLength));
    if (!order) {
        return {{}, false};
    }
    const TiffCopy copy(file, *order, true);
    const bool tooLarge = copy.hasMakerNote() && copy.result().file.size() > maxWithMakerNote;
    return tooLarge ? TiffCopy(file, *order, false).result() : copy.result();
}

// The small file is put in front of the image file, so that its offsets stay valid; the two directories are merged, and
// everything behind the header of the image file moves back.
bool insertTiffMetadata(const OpenFile &file, const QByteArray &metadata)
{
    const QByteArray header = file.bytesAt(0, tiffHeaderSize);
    const std::optional<TiffByteOrder> order = tiffByteOrderOf(header);
    if (!order || header.size() < tiffHeaderSize || metadata.size() < tiffHeaderSize ||
        !metadata.startsWith(header.first(4))) {
        return false;
    }
    const QByteArray front = encodeFront(file, *order, header, metadata);
    if (front.isEmpty() || !file.insert(tiffHeaderSize, QByteArrayView(front).sliced(tiffHeaderSize))) {
        return false;
    }
    file.overwrite(0, QByteArrayView(front).first(tiffHeaderSize));
    return true;
}

} // namespace grisal::graphics
