// SPDX-License-Identifier: MIT
#include "graphics/files/TiffDirectory.h"

#include "graphics/files/ImageFormat.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

// Indexed by the number of the type: 1 byte, 2 text, 3 short, 4 long, 5 rational, then signed and floating-point types.
constexpr std::array<std::uint64_t, 14> typeSizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};

struct TagRange {
    std::uint16_t first;
    std::uint16_t last;
};

// Size, depth, compression, strips, tiles and samples; the names of document and page; layers of image editors; raw
// image data.
constexpr std::array<TagRange, 21> pixelTags{{
    {254, 259}, {262, 266}, {269, 269}, {273, 273},     {277, 281},     {284, 284},     {285, 293},
    {297, 297}, {301, 301}, {317, 317}, {320, 325},     {326, 330},     {332, 334},     {336, 347},
    {400, 404}, {512, 521}, {529, 532}, {34377, 34377}, {37724, 37724}, {50255, 50255}, {50706, 51190},
}};

} // namespace

bool describesPixels(std::uint16_t tag)
{
    return std::any_of(pixelTags.begin(), pixelTags.end(),
                       [tag](const TagRange &range) { return tag >= range.first && tag <= range.last; });
}

std::uint64_t TiffEntry::size() const
{
    return type < typeSizes.size() ? typeSizes.at(type) * count : 0;
}

std::optional<TiffByteOrder> tiffByteOrderOf(QByteArrayView start)
{
    const bool isBigTiff = start.first(std::min<qsizetype>(4, start.size())).contains('+');
    if (formatOfContents(start) == ImageFormat::Tiff && !isBigTiff) {
        return TiffByteOrder(start.startsWith('M'));
    }
    return std::nullopt;
}

std::optional<TiffFileHeader> decodeTiffFileHeader(QByteArrayView start)
{
    const std::optional<TiffByteOrder> order = start.size() < tiffHeaderSize ? std::nullopt : tiffByteOrderOf(start);
    if (!order) {
        return std::nullopt;
    }
    return TiffFileHeader{*order, order->get<std::uint32_t>(start.data() + 4)};
}

std::vector<TiffEntry> decodeDirectory(const QByteArray &bytes, TiffByteOrder order)
{
    const int count = bytes.size() < 2 ? 0 : order.get<std::uint16_t>(bytes.constData());
    if (count > maxTiffEntries) {
        return {};
    }
    std::vector<TiffEntry> entries;
    for (qsizetype at = 2; at + tiffEntrySize <= std::min(bytes.size(), 2 + qsizetype{count} * tiffEntrySize);
         at += tiffEntrySize) {
        const char *start = bytes.constData() + at;
        TiffEntry entry{order.get<std::uint16_t>(start), order.get<std::uint16_t>(start + 2),
                        order.get<std::uint32_t>(start + 4), bytes.mid(at + 8, 4), static_cast<std::uint32_t>(at)};
        if (entry.size() > 0) {
            entries.push_back(std::move(entry));
        }
    }
    return entries;
}

std::optional<TiffFirstDirectory> readFirstDirectory(const OpenFile &file)
{
    const std::optional<TiffFileHeader> header = decodeTiffFileHeader(file.bytesAt(0, tiffHeaderSize));
    if (!header) {
        return std::nullopt;
    }
    const QByteArray bytes = file.bytesAt(header->directoryOffset, maxTiffDirectorySize);
    return TiffFirstDirectory{*header, decodeDirectory(bytes, header->order)};
}

QByteArray encodeEntry(const TiffEntry &entry, TiffByteOrder order)
{
    return order.bytesOf(entry.tag) + order.bytesOf(entry.type) + order.bytesOf(entry.count) + entry.content;
}

QByteArray encodeDirectory(const std::vector<TiffEntry> &directory, TiffByteOrder order)
{
    QByteArray bytes = order.bytesOf(static_cast<std::uint16_t>(directory.size()));
    for (const TiffEntry &entry : directory) {
        bytes += encodeEntry(entry, order);
    }
    return bytes + order.bytesOf(std::uint32_t{0});
}

} // namespace grisal::graphics
