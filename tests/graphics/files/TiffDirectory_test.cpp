// SPDX-License-Identifier: MIT
#include "graphics/files/TiffDirectory.h"

#include <gtest/gtest.h>

using namespace grisal::graphics;

namespace
{

TEST(TiffByteOrder, IsTakenFromTheSignature)
{
    const auto first = tiffByteOrderOf(QByteArrayView("II*\0", 4));
    const auto last = tiffByteOrderOf(QByteArrayView("MM\0*", 4));
    ASSERT_TRUE(first && last);
    EXPECT_EQ(first->bytesOf(std::uint16_t{0x0102}), QByteArray("\x02\x01"));
    EXPECT_EQ(last->bytesOf(std::uint16_t{0x0102}), QByteArray("\x01\x02"));
    EXPECT_EQ(first->get<std::uint32_t>("\x04\x03\x02\x01"), 0x01020304U);
    EXPECT_EQ(last->get<std::uint32_t>("\x01\x02\x03\x04"), 0x01020304U);
}

TEST(TiffByteOrder, IsAbsentForBigTiffAndOtherFiles)
{
    for (const QByteArray &start : {QByteArray("II+\0", 4), QByteArray("MM\0+", 4), QByteArray("II*"), QByteArray(),
                                    QByteArray("\x89PNG\r\n\x1a\n")}) {
        EXPECT_FALSE(tiffByteOrderOf(start)) << start.toStdString();
    }
}

TEST(TiffFileHeader, HasTheByteOrderAndTheOffsetOfTheFirstDirectory)
{
    for (const QByteArray &start :
         {QByteArray("II*\0\x04\x03\x02\x01", 8), QByteArray("MM\0*\x01\x02\x03\x04...", 11)}) {
        const auto header = decodeTiffFileHeader(start);
        ASSERT_TRUE(header);
        EXPECT_EQ(header->directoryOffset, 0x01020304U);
        EXPECT_EQ(header->order.bytesOf(std::uint16_t{0x0102}).startsWith('\x01'), start.startsWith('M'));
    }
}

TEST(TiffFileHeader, IsAbsentIfItIsCutShortOrForOtherFiles)
{
    EXPECT_FALSE(decodeTiffFileHeader(QByteArrayView("II*\0\x08\0\0", 7)));
    EXPECT_FALSE(decodeTiffFileHeader({}));
    EXPECT_FALSE(decodeTiffFileHeader(QByteArrayView("II+\0\x08\0\0\0", 8)));
}

class TiffDirectory : public testing::TestWithParam<bool>
{
protected:
    static QByteArray bytes(const std::vector<TiffEntry> &entries)
    {
        return encodeDirectory(entries, TiffByteOrder(GetParam()));
    }
    static std::vector<TiffEntry> decoded(const QByteArray &bytes)
    {
        return decodeDirectory(bytes, TiffByteOrder(GetParam()));
    }
};

TEST_P(TiffDirectory, RoundTripKeepsAllEntries)
{
    const QByteArray encoded = bytes({{256, 3, 1, "abcd"}, {270, 2, 100, "efgh"}});
    EXPECT_EQ(encoded.size(), 2 + 2 * tiffEntrySize + 4);
    EXPECT_TRUE(encoded.endsWith(QByteArray(4, '\0')));
    const std::vector<TiffEntry> entries = decoded(encoded);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].tag, 256);
    EXPECT_EQ(entries[0].content, "abcd");
    EXPECT_EQ(entries[0].offset, 2U);
    EXPECT_TRUE(entries[0].isInline());
    EXPECT_EQ(entries[1].size(), 100U);
    EXPECT_EQ(entries[1].offset, 14U);
    EXPECT_FALSE(entries[1].isInline());
}

TEST_P(TiffDirectory, OmitsEntriesOfUnknownTypesAndOfNoValues)
{
    const std::vector<TiffEntry> entries = decoded(
        bytes({{1, 0, 1, "...."}, {2, 14, 1, "...."}, {3, 65535, 1, "...."}, {4, 3, 0, "...."}, {5, 13, 1, "...."}}));
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].tag, 5);
}

TEST_P(TiffDirectory, DecodesTheCompleteEntriesOfATruncatedDirectory)
{
    const QByteArray encoded = bytes({{1, 3, 1, "...."}, {2, 3, 1, "...."}});
    EXPECT_EQ(decoded(encoded.first(26)).size(), 2U);
    EXPECT_EQ(decoded(encoded.first(25)).size(), 1U);
    EXPECT_EQ(decoded(encoded.first(13)).size(), 0U);
    EXPECT_EQ(decoded(encoded.first(1)).size(), 0U);
    EXPECT_EQ(decoded({}).size(), 0U);
}

TEST_P(TiffDirectory, IsEmptyWithMoreEntriesThanTheLimit)
{
    EXPECT_EQ(decoded(bytes(std::vector<TiffEntry>(maxTiffEntries, {1, 3, 1, "...."}))).size(), 256U);
    EXPECT_EQ(decoded(bytes(std::vector<TiffEntry>(maxTiffEntries + 1, {1, 3, 1, "...."}))).size(), 0U);
}

INSTANTIATE_TEST_SUITE_P(ByteOrder, TiffDirectory, testing::Bool(),
                         [](const auto &test) { return test.param ? "BigEndian" : "LittleEndian"; });

// The size of 2^32 - 1 values of 8 bytes does not fit into 32 bits.
TEST(TiffEntry, ComputesSizesBeyond32Bits)
{
    EXPECT_EQ((TiffEntry{1, 12, 0xffffffff, {}}).size(), 0x7fffffff8U);
}

TEST(TiffTags, OfPixelsAreNotMetadata)
{
    for (const std::uint16_t tag : {254, 256, 273, 279, 325, 330, 347, 514, 34377, 50706, 51190}) {
        EXPECT_TRUE(describesPixels(tag)) << tag;
    }
    for (const std::uint16_t tag : {253, 270, 271, 274, 282, 306, 315, 700, 33432, 33723, 34665, 34675, 34853, 51191}) {
        EXPECT_FALSE(describesPixels(tag)) << tag;
    }
}

} // namespace
