// SPDX-License-Identifier: MIT
#include "graphics/files/TiffMetadata.h"

#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>

#include <map>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

const TiffByteOrder order(false);

QByteArray number(std::uint32_t value)
{
    return order.bytesOf(value);
}

/// A file that consists of a header, a block of bytes and the first directory.
QByteArray tiffOf(const QByteArray &block, const std::vector<TiffEntry> &directory)
{
    return QByteArray("II*\0", 4) + number(static_cast<std::uint32_t>(tiffHeaderSize + block.size())) + block +
           encodeDirectory(directory, order);
}

std::map<int, TiffEntry> entriesAt(const QByteArray &file, std::uint32_t offset)
{
    std::map<int, TiffEntry> entries;
    for (const TiffEntry &entry : decodeDirectory(file.mid(offset, maxTiffDirectorySize), order)) {
        entries[entry.tag] = entry;
    }
    return entries;
}

std::uint32_t numberAt(const QByteArray &bytes, qsizetype offset)
{
    return order.get<std::uint32_t>(bytes.constData() + offset);
}

struct TiffMetadataTest : testing::Test {
    QTemporaryDir directory;
    QString path = directory.filePath(QStringLiteral("a.tif"));

    OpenFile opened(const QByteArray &contents) const
    {
        writeFile(path, contents);
        return OpenFile(open(path.toLocal8Bit().constData(), O_RDWR | O_CLOEXEC));
    }
};

TEST_F(TiffMetadataTest, ExtractsValuesInlineAndElsewhereWithoutThePixels)
{
    const MetadataBlocks blocks = extractTiffMetadata(
        opened(tiffOf("pixelsAnsel A.", {{256, 3, 1, "wide"}, {271, 2, 4, "Acme"}, {315, 2, 8, number(14)}})));
    EXPECT_TRUE(blocks.complete);
    EXPECT_FALSE(blocks.exif.contains("pixels"));
    auto entries = entriesAt(blocks.exif, numberAt(blocks.exif, 4));
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[271].content, "Acme");
    EXPECT_EQ(blocks.exif.mid(numberAt(entries[315].content, 0), 8), "Ansel A.");
}

TEST_F(TiffMetadataTest, LeavesTheMakersNoteAtItsOffset)
{
    for (const QByteArray &before : {QByteArray(), QByteArray("........")}) {
        const auto noteOffset = static_cast<std::uint32_t>(tiffHeaderSize + before.size());
        const QByteArray exif = encodeDirectory({{37500, 7, 10, number(noteOffset)}}, order);
        const QByteArray file = tiffOf(before + "MakersNote" + exif, {{34665, 4, 1, number(noteOffset + 10)}});
        const MetadataBlocks blocks = extractTiffMetadata(opened(file));
        EXPECT_TRUE(blocks.complete);
        EXPECT_EQ(blocks.exif.indexOf("MakersNote"), noteOffset);
        auto entries = entriesAt(blocks.exif, numberAt(blocks.exif, 4));
        auto inner = entriesAt(blocks.exif, numberAt(entries[34665].content, 0));
        EXPECT_EQ(numberAt(inner[37500].content, 0), noteOffset);
    }
}

TEST_F(TiffMetadataTest, LeavesOutAMakersNoteBeyondTheLimit)
{
    constexpr int limit = 1 << 17;
    for (const int excess : {0, 1}) {
        const int noteOffset = limit - 10 + excess;
        const QByteArray exif =
            encodeDirectory({{37500, 7, 10, number(static_cast<std::uint32_t>(noteOffset))}}, order);
        const QByteArray block = exif + QByteArray(noteOffset - tiffHeaderSize - exif.size(), '.') + "MakersNote";
        const MetadataBlocks blocks =
            extractTiffMetadata(opened(tiffOf(block, {{34665, 4, 1, number(tiffHeaderSize)}})));
        EXPECT_EQ(blocks.complete, excess == 0);
        EXPECT_EQ(blocks.exif.contains("MakersNote"), excess == 0);
    }
}

TEST_F(TiffMetadataTest, LeavesOutTheMakersNoteOfLargeMetadata)
{
    const QByteArray exif = encodeDirectory({{37500, 7, 10, number(16)}}, order);
    for (const int size : {500'000, 550'000}) {
        const QByteArray description(size, 'd');
        const QByteArray front = "........MakersNote" + exif;
        const auto at = static_cast<std::uint32_t>(tiffHeaderSize + front.size());
        const MetadataBlocks blocks = extractTiffMetadata(opened(tiffOf(
            front + description, {{270, 2, static_cast<std::uint32_t>(size), number(at)}, {34665, 4, 1, number(26)}})));
        EXPECT_EQ(blocks.exif.contains("MakersNote"), size == 500'000);
        EXPECT_TRUE(blocks.exif.contains(description));
    }
}

TEST_F(TiffMetadataTest, LeavesOutValuesBeyondTheEndOfTheFile)
{
    const MetadataBlocks blocks =
        extractTiffMetadata(opened(tiffOf("", {{271, 2, 4, "Acme"}, {315, 2, 100, number(1000)}})));
    const auto entries = entriesAt(blocks.exif, numberAt(blocks.exif, 4));
    EXPECT_EQ(entries.count(271), 1U);
    EXPECT_EQ(entries.count(315), 0U);
}

TEST_F(TiffMetadataTest, IsEmptyForBigTiff)
{
    const MetadataBlocks blocks = extractTiffMetadata(opened(QByteArray("II+\0\x08\0\0\0", 8)));
    EXPECT_TRUE(blocks.exif.isEmpty());
    EXPECT_FALSE(blocks.complete);
}

TEST_F(TiffMetadataTest, InsertsMetadataAndShiftsStripsAndValues)
{
    const QByteArray strips = number(8) + number(14);
    const OpenFile file =
        opened(tiffOf("strip1strip2" + strips + "maker!", {{270, 2, 6, number(28)}, {273, 4, 2, number(20)}}));
    ASSERT_TRUE(insertTiffMetadata(file, tiffOf("Ansel A.", {{271, 2, 4, "Acme"}, {315, 2, 8, number(8)}})));
    const QByteArray result = contentsOf(path);
    auto entries = entriesAt(result, numberAt(result, 4));
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[271].content, "Acme");
    EXPECT_EQ(result.mid(numberAt(entries[315].content, 0), 8), "Ansel A.");
    EXPECT_EQ(result.mid(numberAt(entries[270].content, 0), 6), "maker!");
    const std::uint32_t offsets = numberAt(entries[273].content, 0);
    EXPECT_EQ(result.mid(numberAt(result, offsets), 6), "strip1");
    EXPECT_EQ(result.mid(numberAt(result, offsets + 4), 6), "strip2");
}

TEST_F(TiffMetadataTest, KeepsTheMetadataWhereBothFilesHaveAnEntry)
{
    const OpenFile file = opened(tiffOf("strip1", {{273, 4, 1, number(8)}, {305, 2, 4, "save"}}));
    ASSERT_TRUE(insertTiffMetadata(file, tiffOf("", {{305, 2, 4, "Acme"}})));
    const QByteArray result = contentsOf(path);
    auto entries = entriesAt(result, numberAt(result, 4));
    EXPECT_EQ(entries[305].content, "Acme");
    EXPECT_EQ(result.mid(numberAt(entries[273].content, 0), 6), "strip1");
}

TEST_F(TiffMetadataTest, IsNotInsertedWithoutStripsOrInAnotherByteOrder)
{
    const QByteArray metadata = tiffOf("", {{271, 2, 4, "Acme"}});
    for (const QByteArray &contents :
         {tiffOf("strip1", {{256, 4, 1, number(3)}}), QByteArray("MM\0*\0\0\0\x08\0\0\0\0\0\0", 14)}) {
        EXPECT_FALSE(insertTiffMetadata(opened(contents), metadata));
        EXPECT_EQ(contentsOf(path), contents);
    }
}

} // namespace
