// SPDX-License-Identifier: MIT
#include "app/PictureMemory.h"

#include "graphics/files/ImageFile.h"
#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QtEndian>

using namespace grisal::test;
using grisal::memoryForPicture;
using grisal::graphics::ImageFile;

namespace
{

constexpr int side = 10'000;
constexpr std::uint64_t pixels = std::uint64_t{side} * side;

struct PictureMemoryTest : testing::Test {
    /// That of a file of the given header and some other bytes.
    std::uint64_t memoryFor(const QByteArray &header) const
    {
        writeFile(directory.filePath("a"), header + QByteArray(1'000'000, '\1'));
        const ImageFile file(directory.filePath("a"));
        EXPECT_TRUE(file.problem().isEmpty());
        EXPECT_EQ(file.header().pixels(), pixels);
        return memoryForPicture(file);
    }

    template <typename Number>
    static QByteArray bigEndian(Number number)
    {
        QByteArray bytes(sizeof number, '\0');
        qToBigEndian(number, bytes.data());
        return bytes;
    }

    static QByteArray png(char depth)
    {
        return QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16) + bigEndian(side) + bigEndian(side) + depth +
               QByteArray("\2\0\0\0", 4);
    }

    static QByteArray jpeg(char frame)
    {
        const auto size = bigEndian(static_cast<std::uint16_t>(side));
        return QByteArray("\xff\xd8\xff") + frame + QByteArray("\0\x11\x08", 3) + size + size + '\3' +
               QByteArray(9, '\0');
    }

    static QByteArray tiffOf16Bits()
    {
        const grisal::graphics::TiffByteOrder order(true);
        const auto value = [](int number) { return bigEndian(static_cast<std::uint16_t>(number)) + QByteArray(2, 0); };
        return QByteArray("MM\0*\0\0\0\x08", 8) + encodeDirectory({{256, 3, 1, value(side)},
                                                                   {257, 3, 1, value(side)},
                                                                   {258, 3, 1, value(16)},
                                                                   {274, 3, 1, value(6)},
                                                                   {277, 3, 1, value(3)}},
                                                                  order);
    }

    QTemporaryDir directory;
};

TEST_F(PictureMemoryTest, LetsAPictureOf100MegapixelsOpenWith4GigabytesFree)
{
    constexpr std::uint64_t free = 4'000'000'000;
    for (const QByteArray &header : {png(8), png(16), jpeg('\xc0'), jpeg('\xc2'), tiffOf16Bits()}) {
        EXPECT_LT(memoryFor(header), free);
    }
}

// GraphicsMagick holds 10 bytes a pixel, while the picture and its result are held as well.
TEST_F(PictureMemoryTest, IncludesTheMemoryForSaving)
{
    EXPECT_GE(memoryFor(png(8)), pixels * (10 + 2 * 3));
    EXPECT_GE(memoryFor(png(16)), pixels * (10 + 2 * 6));
    EXPECT_GT(memoryFor(png(16)), memoryFor(png(8)));
}

TEST_F(PictureMemoryTest, CountsTheCopyOfARotatedTiff)
{
    EXPECT_GE(memoryFor(tiffOf16Bits()), pixels * 20 + 1'000'000);
}

} // namespace
