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

/// The most of values and directories that is taken along. A directory may name itself as its inner one.
constexpr std::uint64_t mostMetadata = 8 << 20;
/// A maker's note may point to any place before or behind itself, and as often as it likes.
constexpr std::uint64_t lastPlaceOfNote = 1 << 17;
constexpr qsizetype mostBesideNote = 1 << 19;

bool is(const TiffEntry &entry, TiffTag tag)
{
    return entry.tag == static_cast<std::uint16_t>(tag);
}

bool isDirectory(const TiffEntry &entry)
{
    return is(entry, TiffTag::ExifDirectory) || is(entry, TiffTag::GpsDirectory) ||
           is(entry, TiffTag::InteroperabilityDirectory);
}

/// Copies the directories of a TIFF file with their values, those of the pixels aside.
class TiffCopy
{
public:
    TiffCopy(const OpenFile &file, TiffOrder order, bool withNote)
        : m_file(file), m_order(order), m_copy(file.bytesAt(0, 4) + QByteArray(4, '\0'))
    {
        const auto start = place(file.bytesAt(4, 4));
        if (withNote) {
            copyNote(start);
        }
        const std::uint32_t copied = copyDirectory(start, 0);
        m_order.put(copied, m_copy.data() + 4);
    }

    MetadataBlocks result() const { return {m_copy, m_complete}; }
    bool hasNote() const { return m_hasNote; }

private:
    std::uint32_t place(const QByteArray &content) const
    {
        return content.size() == 4 ? m_order.get<std::uint32_t>(content.constData()) : 0;
    }
    std::vector<TiffEntry> directoryAt(std::uint32_t from) const
    {
        return tiffDirectory(m_file.bytesAt(from, largestTiffDirectory), m_order);
    }
    std::uint32_t end() const { return static_cast<std::uint32_t>(m_copy.size()); }

    // Its contents count places from the start of the file: it has to stay where it was.
    void copyNote(std::uint32_t start)
    {
        for (const TiffEntry &outer : directoryAt(start)) {
            if (!is(outer, TiffTag::ExifDirectory)) {
                continue;
            }
            for (const TiffEntry &entry : directoryAt(place(outer.content))) {
                const std::uint32_t from = place(entry.content);
                if (is(entry, TiffTag::MakerNote) && !entry.isInPlace() && from >= tiffHeaderSize &&
                    from + entry.size() <= lastPlaceOfNote) {
                    m_copy += QByteArray(qsizetype{from} - m_copy.size(), '\0');
                    m_copy += m_file.bytesAt(from, static_cast<qsizetype>(entry.size()));
                    m_hasNote = true;
                    return;
                }
            }
        }
    }

    /// Returns the place of the copy.
    std::uint32_t copyDirectory(std::uint32_t from, int depth)
    {
        constexpr int deepest = 2; // interoperability in Exif in the first
        std::vector<TiffEntry> entries;
        const bool isTooMuch = !takes(largestTiffDirectory);
        for (TiffEntry &entry : isTooMuch ? std::vector<TiffEntry>() : directoryAt(from)) {
            if (depth == 0 && describesPixels(entry.tag)) {
                continue;
            }
            if (isDirectory(entry) ? depth < deepest && copyInner(entry, depth) : copyValues(entry)) {
                entries.push_back(std::move(entry));
            }
        }
        align();
        const std::uint32_t copied = end();
        m_copy += tiffBytes(entries, m_order);
        return copied;
    }

    bool copyInner(TiffEntry &entry, int depth)
    {
        entry.content = m_order.bytesOf(copyDirectory(place(entry.content), depth + 1));
        return true;
    }

    bool copyValues(TiffEntry &entry)
    {
        if (entry.isInPlace()) {
            return true;
        }
        if (is(entry, TiffTag::MakerNote)) {
            m_complete = m_complete && m_hasNote;
            return m_hasNote;
        }
        if (!takes(entry.size())) {
            return false;
        }
        const QByteArray values = m_file.bytesAt(place(entry.content), static_cast<qsizetype>(entry.size()));
        align();
        entry.content = m_order.bytesOf(end());
        m_copy += values;
        return values.size() == static_cast<qsizetype>(entry.size());
    }

    /// Whether that many bytes more are not too many; if so, they are counted.
    bool takes(std::uint64_t size)
    {
        const bool fits = m_taken + size <= mostMetadata;
        m_taken += fits ? size : 0;
        m_complete = m_complete && fits;
        return fits;
    }

    void align() { m_copy += QByteArray(m_copy.size() % 2, '\0'); }

    const OpenFile &m_file;
    TiffOrder m_order;
    QByteArray m_copy;
    std::uint64_t m_taken = 0;
    bool m_hasNote = false;
    bool m_complete = true;
};

/// The places of the strips, moved on by a distance.
QByteArray movedStrips(const OpenFile &file, TiffOrder order, const TiffEntry &entry, std::uint32_t distance)
{
    const auto size = static_cast<qsizetype>(entry.size());
    const qsizetype each = size / entry.count;
    const QByteArray places =
        entry.isInPlace() ? entry.content : file.bytesAt(order.get<std::uint32_t>(entry.content.constData()), size);
    QByteArray moved;
    for (qsizetype at = 0; at + each <= std::min(size, places.size()); at += each) {
        const char *bytes = places.constData() + at;
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

std::uint32_t startOf(QByteArrayView file, TiffOrder order)
{
    return order.get<std::uint32_t>(file.data() + 4);
}

/// What is to stand before the rest of a picture file in the place of its header: `metadata` and a directory made of
/// both.
QByteArray frontOf(const OpenFile &file, TiffOrder order, const QByteArray &header, const QByteArray &metadata)
{
    Directory pixels = byTag(tiffDirectory(file.bytesAt(startOf(header, order), largestTiffDirectory), order));
    Directory merged = byTag(tiffDirectory(metadata.mid(startOf(metadata, order), largestTiffDirectory), order));
    const auto strips = pixels.find(static_cast<std::uint16_t>(TiffTag::StripOffsets));
    if (strips == pixels.end()) {
        return {};
    }
    QByteArray front = metadata + QByteArray(metadata.size() % 2, '\0');
    Directory all = merged;
    all.insert(pixels.begin(), pixels.end());
    const auto places = static_cast<std::uint32_t>(front.size());
    const auto directory = places + strips->second.count * 4;
    const auto distance =
        directory + static_cast<std::uint32_t>(tiffBytes(inOrder(all), order).size()) - tiffHeaderSize;
    front += movedStrips(file, order, strips->second, distance);
    if (front.size() != directory || file.size() + distance > std::numeric_limits<std::uint32_t>::max()) {
        return {};
    }
    for (auto &[tag, entry] : pixels) {
        if (!entry.isInPlace()) {
            entry.content = order.bytesOf(order.get<std::uint32_t>(entry.content.constData()) + distance);
        }
    }
    constexpr std::uint16_t longType = 4;
    strips->second.type = longType;
    strips->second.content = strips->second.count == 1 ? front.last(4) : order.bytesOf(places);
    merged.insert(pixels.begin(), pixels.end());
    order.put(directory, front.data() + 4);
    return front + tiffBytes(inOrder(merged), order);
}

} // namespace

MetadataBlocks extractTiffMetadata(const OpenFile &file)
{
    const std::optional<TiffOrder> order = tiffOrderOf(file.bytesAt(0, signatureLength));
    if (!order) {
        return {{}, false};
    }
    const TiffCopy copy(file, *order, true);
    const bool tooLarge = copy.hasNote() && copy.result().file.size() > mostBesideNote;
    return tooLarge ? TiffCopy(file, *order, false).result() : copy.result();
}

// The small file becomes the front of the picture file, so that all places in it stay good; of the directories one is
// made, and what stood behind the header moves back.
bool insertTiffMetadata(const OpenFile &file, const QByteArray &metadata)
{
    const QByteArray header = file.bytesAt(0, tiffHeaderSize);
    const std::optional<TiffOrder> order = tiffOrderOf(header);
    if (!order || header.size() < tiffHeaderSize || metadata.size() < tiffHeaderSize ||
        !metadata.startsWith(header.first(4))) {
        return false;
    }
    const QByteArray front = frontOf(file, *order, header, metadata);
    if (front.isEmpty() || !file.insert(tiffHeaderSize, QByteArrayView(front).sliced(tiffHeaderSize))) {
        return false;
    }
    file.overwrite(0, QByteArrayView(front).first(tiffHeaderSize));
    return true;
}

} // namespace grisal::graphics
