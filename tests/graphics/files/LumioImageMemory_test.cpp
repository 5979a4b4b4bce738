// SPDX-License-Identifier: MIT
// Files that would exhaust the memory.
#include "graphics/files/ImageLibrary.h"
#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/ImageTest.h"

#include <QFile>

#include <sys/resource.h>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

/// The most memory that the process has had, in kilobytes.
long mostMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

Samples colourful(int x, int y)
{
    return {static_cast<std::uint16_t>(x * 900), static_cast<std::uint16_t>(y * 1300), 7};
}

using LumioImageMemoryTest = ImageTest;

// libjpeg would decode all of it before its size is known.
TEST_F(LumioImageMemoryTest, RejectsAProgressiveJpegOfTooManyPixelsBeforeDecodingIt)
{
    Magick::Image picture = painted(64, 48, 8, colourful);
    picture.interlaceType(Magick::LineInterlace);
    QByteArray jpeg = contentsOf(written(picture, "a.jpg"));
    const auto size = jpeg.indexOf(QByteArray("\xff\xc2", 2)) + 5;
    ASSERT_GT(size, 5);
    for (const int place : {0, 2}) {
        jpeg[size + place] = 0x40; // 16,384 pixels and some
    }
    writeFile(path("b.jpg"), jpeg + QByteArray(2'000'000, '\0'));
    const long before = mostMemory();
    EXPECT_FALSE(image.read(path("b.jpg")));
    EXPECT_LT(mostMemory() - before, 100'000);
    EXPECT_TRUE(image.problem().english().contains("too small a file")) << image.problem().english().toStdString();
}

TEST_F(LumioImageMemoryTest, RejectsASparseTiffOfTooManyPixels)
{
    Magick::Image picture = painted(8, 8, 8, colourful);
    picture.compressType(Magick::NoCompression);
    QByteArray tiff = contentsOf(written(picture, "a.tif"));
    const QByteArray width = QByteArray("\0\1\3\0\1\0\0\0\x08\0", 10);
    const QByteArray height = QByteArray("\1\1\3\0\1\0\0\0\x08\0", 10);
    ASSERT_TRUE(tiff.contains(width) && tiff.contains(height));
    tiff.replace(width, width.left(8) + QByteArray("\0\x40", 2)); // 16,384 pixels
    tiff.replace(height, height.left(8) + QByteArray("\0\x40", 2));
    writeFile(path("b.tif"), tiff);
    ASSERT_TRUE(QFile(path("b.tif")).resize(qint64{3} << 28));
    const long before = mostMemory();
    EXPECT_FALSE(image.read(path("b.tif")));
    EXPECT_LT(mostMemory() - before, 100'000);
    EXPECT_TRUE(image.problem().english().contains("too small a file")) << image.problem().english().toStdString();
}

// It is copied for the orientation; the copy of 16 gigabytes ended the program.
TEST_F(LumioImageMemoryTest, ReadsASparseTiffInAnotherOrientation)
{
    Magick::Image picture = painted(6, 4, 8, colourful);
    picture.orientation(Magick::RightTopOrientation);
    const QString file = written(picture, "a.tif");
    ASSERT_TRUE(QFile(file).resize(qint64{1} << 34));
    ASSERT_TRUE(image.read(file)) << image.problem().english().toStdString();
    EXPECT_EQ(image.width(), 4);
}

// The size is behind more entries than are read.
TEST_F(LumioImageMemoryTest, RejectsATiffOfTooManyPixelsWhoseSizeIsNotFound)
{
    const TiffByteOrder order(false);
    const auto value = [&](std::uint32_t number) { return order.bytesOf(number); };
    for (const std::uint32_t side : {100U, 20'000U}) {
        std::vector<TiffEntry> entries{{256, 4, 1, value(side)}, {257, 4, 1, value(side)}, {258, 3, 1, value(8)},
                                       {259, 3, 1, value(1)},    {262, 3, 1, value(1)},    {273, 4, 1, value(8)},
                                       {277, 3, 1, value(1)},    {278, 4, 1, value(side)}, {279, 4, 1, value(10'000)}};
        for (std::uint16_t tag = 40'000; entries.size() < 300; ++tag) {
            entries.push_back({tag, 4, 1, value(0)});
        }
        const QByteArray pixels(10'000, 'a');
        writeFile(path("a.tif"), QByteArray("II*\0", 4) + value(10'008) + pixels + encodeDirectory(entries, order));
        EXPECT_EQ(image.read(path("a.tif")), side == 100) << image.problem().english().toStdString();
    }
    EXPECT_TRUE(image.problem().english().contains("ixel")) << image.problem().english().toStdString();
}

TEST_F(LumioImageMemoryTest, ScopedPixelLimitAppliesToEachImageDuringItsLifetime)
{
    EXPECT_EQ(MagickLib::GetMagickResourceLimit(MagickLib::PixelsResource), 1'000'000'000);
    {
        const ScopedPixelLimit limit(1000);
        EXPECT_THROW(painted(40, 30, 8, colourful), Magick::Exception);
        EXPECT_NO_THROW(painted(40, 25, 8, colourful));
    }
    EXPECT_NO_THROW(painted(40, 30, 8, colourful));
}

} // namespace
