// SPDX-License-Identifier: MIT
#include "graphics/files/ImageHeader.h"

#include "graphics/files/TiffDirectory.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <fcntl.h>

using namespace grisal::test;
using namespace grisal::graphics;

namespace
{

struct ImageHeaderTest : testing::Test {
    QString path(const char *name) const { return directory.filePath(QString::fromLatin1(name)); }

    static std::optional<ImageHeader> headerOfFile(const QString &name, ImageFormat format)
    {
        const OpenFile file(open(name.toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC));
        return readImageHeader(file, format);
    }

    std::optional<ImageHeader> headerOf(const QByteArray &contents, ImageFormat format) const
    {
        writeFile(path("a"), contents);
        return headerOfFile(path("a"), format);
    }

    /// The header of a file that GraphicsMagick writes, 70 x 50 pixels.
    ImageHeader headerOfWritten(const char *name, ImageFormat format, int depth,
                                const std::function<void(Magick::Image &)> &change) const
    {
        Magick::Image image = painted(70, 50, depth, [](int x, int y) -> Samples {
            return {static_cast<std::uint16_t>(x * 900), static_cast<std::uint16_t>(y * 1300), 7};
        });
        change(image);
        image.write(path(name).toStdString());
        const ImageHeader header = headerOfFile(path(name), format).value_or(ImageHeader());
        EXPECT_EQ(header.width, 70U) << name;
        EXPECT_EQ(header.height, 50U) << name;
        return header;
    }

    static QByteArray segment(char marker, const QByteArray &contents)
    {
        return QByteArray("\xff") + marker + QByteArray(1, '\0') + static_cast<char>(contents.size() + 2) + contents;
    }

    QTemporaryDir directory;

    const QByteArray start = "\xff\xd8";
    /// 8 bits, 0x0102 x 0x0304 pixels, three components.
    const QByteArray frame = QByteArray("\x08\x03\x04\x01\x02\x03", 6) + QByteArray(9, '\0');
    const QByteArray scanOfAll = segment('\xda', QByteArray("\x03\0\0\0\0\0\0\0\0\0", 10));
};

TEST_F(ImageHeaderTest, LimitsTheNumberOfPixels)
{
    ImageHeader header;
    header.width = 0xffff'ffff;
    header.height = 0xffff'ffff;
    EXPECT_EQ(header.pixels(), std::uint64_t{1} << 32);
}

TEST_F(ImageHeaderTest, ReadsAJpeg)
{
    const ImageHeader baseline = headerOfWritten("a.jpg", ImageFormat::Jpeg, 8, [](Magick::Image &) {});
    EXPECT_EQ(baseline.bitsPerSample, 8);
    EXPECT_EQ(baseline.samplesPerPixel, 3);
    EXPECT_TRUE(baseline.isJpeg);
    EXPECT_EQ(baseline.decoderBytesPerPixel, 0U);
}

TEST_F(ImageHeaderTest, CountsTheCoefficientsOfAProgressiveJpeg)
{
    const ImageHeader progressive = headerOfWritten(
        "a.jpg", ImageFormat::Jpeg, 8, [](Magick::Image &image) { image.interlaceType(Magick::LineInterlace); });
    EXPECT_EQ(progressive.decoderBytesPerPixel, 6U);
    EXPECT_EQ(headerOf(start + segment('\xc2', frame) + scanOfAll, ImageFormat::Jpeg)->decoderBytesPerPixel, 6U);
    EXPECT_EQ(headerOf(start + segment('\xca', frame), ImageFormat::Jpeg)->decoderBytesPerPixel, 6U);
}

// libjpeg keeps their coefficients as well.
TEST_F(ImageHeaderTest, CountsTheCoefficientsOfAJpegWithAScanForEachComponent)
{
    const QByteArray scanOfOne = segment('\xda', QByteArray("\x01\0\0\0\0\0", 6));
    EXPECT_EQ(headerOf(start + segment('\xc0', frame) + scanOfAll, ImageFormat::Jpeg)->decoderBytesPerPixel, 0U);
    EXPECT_EQ(headerOf(start + segment('\xc0', frame) + scanOfOne, ImageFormat::Jpeg)->decoderBytesPerPixel, 6U);
}

TEST_F(ImageHeaderTest, FindsTheFrameOfAJpegBehindOtherSegmentsAndBytes)
{
    const QByteArray other = segment('\xe1', "Exif \xff\xc0 a thumbnail");
    for (const QByteArray &before :
         {QByteArray(), other, other.repeated(500), QByteArray("\xff\xff\xff"), QByteArray(10'000, '\0'),
          segment('\xc4', "Huffman"), QByteArray("\xff\0\xff\x01\xff\xd0", 6)}) {
        const auto header = headerOf(start + before + segment('\xc1', frame) + scanOfAll, ImageFormat::Jpeg);
        ASSERT_TRUE(header) << before.size();
        EXPECT_EQ(header->width, 0x0102U);
        EXPECT_EQ(header->height, 0x0304U);
    }
}

TEST_F(ImageHeaderTest, ReadsAPng)
{
    const ImageHeader colours = headerOfWritten("a.png", ImageFormat::Png, 8, [](Magick::Image &) {});
    EXPECT_EQ(colours.bitsPerSample, 8);
    EXPECT_EQ(colours.samplesPerPixel, 3);
    EXPECT_FALSE(colours.isJpeg);
    EXPECT_EQ(colours.decoderBytesPerPixel, 0U);
    const ImageHeader lines =
        headerOfWritten("b.png", ImageFormat::Png, 8, [](Magick::Image &image) { image.type(Magick::BilevelType); });
    EXPECT_EQ(lines.bitsPerSample, 1);
    EXPECT_EQ(lines.samplesPerPixel, 1);
}

TEST_F(ImageHeaderTest, CountsTheSamplesOfAnInterlacedPng)
{
    const auto interlace = [](Magick::Image &image) { image.interlaceType(Magick::LineInterlace); };
    EXPECT_EQ(headerOfWritten("a.png", ImageFormat::Png, 8, interlace).decoderBytesPerPixel, 3U);
    const ImageHeader fine = headerOfWritten("b.png", ImageFormat::Png, 16, interlace);
    EXPECT_EQ(fine.bitsPerSample, 16);
    EXPECT_EQ(fine.decoderBytesPerPixel, 6U);
}

TEST_F(ImageHeaderTest, ReadsATiff)
{
    for (const int depth : {8, 16}) {
        const ImageHeader header = headerOfWritten("a.tif", ImageFormat::Tiff, depth, [](Magick::Image &) {});
        EXPECT_EQ(header.bitsPerSample, depth);
        EXPECT_EQ(header.samplesPerPixel, 3);
        EXPECT_FALSE(header.isJpeg);
        EXPECT_EQ(header.decoderBytesPerPixel, static_cast<std::uint32_t>(depth) * 3 / 8);
    }
    const ImageHeader jpeg = headerOfWritten("b.tif", ImageFormat::Tiff, 8,
                                             [](Magick::Image &image) { image.compressType(Magick::JPEGCompression); });
    EXPECT_TRUE(jpeg.isJpeg);
    EXPECT_EQ(jpeg.decoderBytesPerPixel, 6U);
}

// Its colours have 16 bits.
TEST_F(ImageHeaderTest, CountsAPaletteInATiffAs16Bits)
{
    const ImageHeader header = headerOfWritten("a.tif", ImageFormat::Tiff, 8, [](Magick::Image &image) {
        image.quantizeColors(16);
        image.quantize();
        image.type(Magick::PaletteType);
    });
    EXPECT_EQ(header.samplesPerPixel, 1);
    EXPECT_EQ(header.bitsPerSample, 16);
}

TEST_F(ImageHeaderTest, ReadsATiffOfEitherByteOrder)
{
    for (const bool isBigEndian : {false, true}) {
        const TiffByteOrder order(isBigEndian);
        const QByteArray file = (isBigEndian ? QByteArray("MM\0*\0\0\0\x08", 8) : QByteArray("II*\0\x08\0\0\0", 8)) +
                                encodeDirectory({{256, 4, 1, order.bytesOf(std::uint32_t{70'000})},
                                                 {257, 3, 1, order.bytesOf(std::uint16_t{50}) + QByteArray(2, '\0')}},
                                                order);
        const auto header = headerOf(file, ImageFormat::Tiff);
        ASSERT_TRUE(header);
        EXPECT_EQ(header->width, 70'000U);
        EXPECT_EQ(header->height, 50U);
        EXPECT_EQ(header->bitsPerSample, 1);
        EXPECT_EQ(header->samplesPerPixel, 1);
    }
}

TEST_F(ImageHeaderTest, ReadsABigTiff)
{
    const TiffByteOrder order(true);
    const auto entry = [&](std::uint16_t tag, std::uint16_t type, std::uint64_t count, const QByteArray &value) {
        return order.bytesOf(tag) + order.bytesOf(type) + order.bytesOf(count) + value.leftJustified(8, '\0', true);
    };
    const QByteArray file = QByteArray("MM\0+\0\x08\0\0", 8) + order.bytesOf(std::uint64_t{16}) +
                            order.bytesOf(std::uint64_t{4}) + entry(256, 16, 1, order.bytesOf(std::uint64_t{1} << 40)) +
                            entry(257, 4, 1, order.bytesOf(std::uint32_t{50})) +
                            entry(258, 3, 3, order.bytesOf(std::uint16_t{16}).repeated(3)) +
                            entry(277, 3, 1, order.bytesOf(std::uint16_t{3}));
    const auto header = headerOf(file, ImageFormat::Tiff);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->width, 0xffff'ffffU);
    EXPECT_EQ(header->height, 50U);
    EXPECT_EQ(header->bitsPerSample, 16);
    EXPECT_EQ(header->samplesPerPixel, 3);
}

TEST_F(ImageHeaderTest, ReadsTheDepthOfABigTiffBehindItsDirectory)
{
    const TiffByteOrder order(false);
    const auto entry = [&](std::uint16_t tag, std::uint64_t count, std::uint64_t value) {
        return order.bytesOf(tag) + order.bytesOf(std::uint16_t{3}) + order.bytesOf(count) + order.bytesOf(value);
    };
    constexpr std::uint64_t behind = 16 + 8 + 4 * 20;
    const QByteArray file = QByteArray("II+\0\x08\0\0\0", 8) + order.bytesOf(std::uint64_t{16}) +
                            order.bytesOf(std::uint64_t{4}) + entry(256, 1, 40) + entry(257, 1, 50) +
                            entry(258, 5, behind) + entry(277, 1, 5) + order.bytesOf(std::uint16_t{16}).repeated(5);
    const auto header = headerOf(file, ImageFormat::Tiff);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->bitsPerSample, 16);
    EXPECT_EQ(header->samplesPerPixel, 5);
    const auto cut = headerOf(file.chopped(10), ImageFormat::Tiff);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->bitsPerSample, 0);
}

TEST_F(ImageHeaderTest, LeavesOutTheCutEntryOfABigTiff)
{
    const TiffByteOrder order(false);
    const auto entry = [&](std::uint16_t tag) {
        return order.bytesOf(tag) + order.bytesOf(std::uint16_t{3}) + order.bytesOf(std::uint64_t{1}) +
               order.bytesOf(std::uint64_t{50});
    };
    const QByteArray file = QByteArray("II+\0\x08\0\0\0", 8) + order.bytesOf(std::uint64_t{16}) +
                            order.bytesOf(std::uint64_t{2}) + entry(256) + entry(257);
    EXPECT_TRUE(headerOf(file, ImageFormat::Tiff));
    EXPECT_FALSE(headerOf(file.chopped(1), ImageFormat::Tiff));
    EXPECT_FALSE(headerOf(file.chopped(8), ImageFormat::Tiff));
}

TEST_F(ImageHeaderTest, ReturnsNothingWithoutASize)
{
    for (const QByteArray &contents : {QByteArray(), QByteArray("\xff\xd8\xff"), start + segment('\xe0', "JFIF"),
                                       start + segment('\xc0', frame).left(9), start + scanOfAll,
                                       start + QByteArray(3 << 20, '\0') + segment('\xc0', frame)}) {
        EXPECT_FALSE(headerOf(contents, ImageFormat::Jpeg)) << contents.size();
    }
    for (const QByteArray &contents : {QByteArray(), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16),
                                       QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x0dIDAT", 16) + QByteArray(20, '\1')}) {
        EXPECT_FALSE(headerOf(contents, ImageFormat::Png)) << contents.size();
    }
    for (const QByteArray &contents : {QByteArray(), QByteArray("II*\0\x08\0\0\0", 8), QByteArray("II+\0\x08\0\0\0", 8),
                                       QByteArray("II+\0\x08\0\0\0\xff\xff\xff\xff\xff\xff\xff\xff", 16)}) {
        EXPECT_FALSE(headerOf(contents, ImageFormat::Tiff)) << contents.size();
    }
}

} // namespace
