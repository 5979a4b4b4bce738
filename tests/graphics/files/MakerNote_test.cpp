// SPDX-License-Identifier: MIT
#include "graphics/files/MakerNote.h"

#include "graphics/files/TiffDirectory.h"
#include "graphics/files/TiffMetadata.h"

#include <gtest/gtest.h>

#include <exiv2/exiv2.hpp>

#include <vector>

using namespace grisal::graphics;

namespace
{

const TiffByteOrder order(true);

/// A directory of `count` entries that refer to directories, each behind the one before by the size of an entry.
QByteArray repeatedDirectories(int count, std::uint32_t first)
{
    std::vector<TiffEntry> entries;
    for (int i = 0; i < count; ++i) {
        entries.push_back({0x11, 4, 1, order.bytesOf(first + static_cast<std::uint32_t>(i * tiffEntrySize))});
    }
    return encodeDirectory(entries, order);
}

/// A note in the manner of Nikon, of which each inner directory has 250 entries: their values are the whole note, and
/// the offset of each value is the number of entries of another directory.
QByteArray nikonNote(int directories)
{
    constexpr std::uint32_t entriesEach = 250;
    const auto inner = static_cast<std::uint32_t>(8 + 2 + directories * tiffEntrySize + 4);
    QByteArray note = QByteArray("Nikon\0\2\x10\0\0MM\0*\0\0\0\x08", 18) + repeatedDirectories(directories, inner);
    note += order.bytesOf(static_cast<std::uint16_t>(entriesEach));
    for (std::uint32_t i = 0; i < entriesEach + static_cast<std::uint32_t>(directories) + 1; ++i) {
        note += encodeEntry({1, 7, 1'000, order.bytesOf(entriesEach)}, order);
    }
    return note;
}

QByteArray exifWith(const QByteArray &note)
{
    const std::uint32_t noteAt = 8 + 2 + 2 * tiffEntrySize + 4 + 2 + tiffEntrySize + 4 + 6;
    return QByteArray("MM\0*\0\0\0\x08", 8) +
           encodeDirectory({{271, 2, 6, order.bytesOf(noteAt - 6)}, {34665, 4, 1, order.bytesOf(std::uint32_t{38})}},
                           order) +
           encodeDirectory({{37500, 7, static_cast<std::uint32_t>(note.size()), order.bytesOf(noteAt)}}, order) +
           QByteArray("NIKON\0", 6) + note;
}

int entriesOf(const QByteArray &exif)
{
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    Exiv2::ExifData data;
    Exiv2::ExifParser::decode(data, reinterpret_cast<const Exiv2::byte *>(exif.constData()),
                              static_cast<std::uint32_t>(exif.size()));
    return static_cast<int>(data.count());
}

TEST(RepeatsTags, IsTrueIfATagOccursMoreThanEightTimes)
{
    for (const QByteArray &header :
         {QByteArray(), QByteArray("OLYMP\0\1\0", 8), QByteArray("Acme\0\0\0\0\0\0\0\0", 12)}) {
        EXPECT_FALSE(repeatsTags(header + repeatedDirectories(8, 0)));
        EXPECT_TRUE(repeatsTags(header + repeatedDirectories(9, 0)));
    }
    EXPECT_FALSE(repeatsTags({}));
    EXPECT_FALSE(repeatsTags(QByteArray(5'000, '\0')));
    EXPECT_FALSE(repeatsTags(QByteArray(5'000, '\1')));
}

TEST(RepeatsTags, IsTrueForSuchADirectoryBehindTheHeaderOfATiffFile)
{
    const QByteArray start = QByteArray("Nikon\0\2\x10\0\0MM\0*\0\0\x03\0", 18) + QByteArray(0x300 - 8, '\0');
    EXPECT_FALSE(repeatsTags(start + repeatedDirectories(8, 0)));
    EXPECT_TRUE(repeatsTags(start + repeatedDirectories(9, 0)));
}

TEST(MakerNote, IsLeftOutIfItWouldExpand)
{
    const QByteArray exif = exifWith(nikonNote(200));
    ASSERT_GT(entriesOf(exif), 40'000);
    const MetadataBlocks blocks = extractExif(exif);
    EXPECT_FALSE(blocks.complete);
    EXPECT_LT(entriesOf(blocks.exif), 10);
    EXPECT_TRUE(extractExif(exifWith("Acme" + repeatedDirectories(8, 0))).complete);
}

} // namespace
