// SPDX-License-Identifier: MIT
#include "graphics/files/TiffDirectory.h"

#include "graphics/files/PictureFormat.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

// By the number of the type, from 1: byte, text, short, long, rational, then the signed ones and floating point.
constexpr std::array<std::uint64_t, 14> typeSizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};

struct TagRange {
    std::uint16_t first;
    std::uint16_t last;
};

// Size, depth, compression, strips, tiles and samples; the names of the document and page; the layers of one editor,
// twice; and what makes a picture a raw one.
constexpr std::array<TagRange, 21> ofPixels{{
    {254, 259}, {262, 266}, {269, 269}, {273, 273},     {277, 281},     {284, 284},     {285, 293},
    {297, 297}, {301, 301}, {317, 317}, {320, 325},     {326, 330},     {332, 334},     {336, 347},
    {400, 404}, {512, 521}, {529, 532}, {34377, 34377}, {37724, 37724}, {50255, 50255}, {50706, 51190},
}};

} // namespace

bool describesPixels(std::uint16_t tag)
{
    return std::any_of(ofPixels.begin(), ofPixels.end(),
                       [tag](const TagRange &range) { return tag >= range.first && tag <= range.last; });
}

std::uint64_t TiffEntry::size() const
{
    return type < typeSizes.size() ? typeSizes.at(type) * count : 0;
}

std::optional<TiffOrder> tiffOrderOf(QByteArrayView start)
{
    const bool isBigTiff = start.first(std::min<qsizetype>(4, start.size())).contains('+');
    if (formatOfContents(start) == PictureFormat::Tiff && !isBigTiff) {
        return TiffOrder(start.startsWith('M'));
    }
    return std::nullopt;
}

std::vector<TiffEntry> tiffDirectory(const QByteArray &bytes, TiffOrder order)
{
    const int count = bytes.size() < 2 ? 0 : order.get<std::uint16_t>(bytes.constData());
    if (count > mostTiffEntries) {
        return {};
    }
    std::vector<TiffEntry> entries;
    for (qsizetype at = 2; at + tiffEntrySize <= std::min(bytes.size(), 2 + qsizetype{count} * tiffEntrySize);
         at += tiffEntrySize) {
        const char *line = bytes.constData() + at;
        TiffEntry entry{order.get<std::uint16_t>(line), order.get<std::uint16_t>(line + 2),
                        order.get<std::uint32_t>(line + 4), bytes.mid(at + 8, 4), static_cast<std::uint32_t>(at)};
        if (entry.size() > 0) {
            entries.push_back(std::move(entry));
        }
    }
    return entries;
}

QByteArray tiffLine(const TiffEntry &entry, TiffOrder order)
{
    return order.bytesOf(entry.tag) + order.bytesOf(entry.type) + order.bytesOf(entry.count) + entry.content;
}

QByteArray tiffBytes(const std::vector<TiffEntry> &directory, TiffOrder order)
{
    QByteArray bytes = order.bytesOf(static_cast<std::uint16_t>(directory.size()));
    for (const TiffEntry &entry : directory) {
        bytes += tiffLine(entry, order);
    }
    return bytes + order.bytesOf(std::uint32_t{0});
}

} // namespace grisal::graphics
