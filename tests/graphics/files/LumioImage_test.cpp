// SPDX-License-Identifier: MIT
#include "graphics/files/ImageLibrary.h"
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <csignal>
#include <cstddef>
#include <numeric>
#include <utility>

using namespace grisal::test;
using grisal::graphics::initializeImageLibrary;
using grisal::graphics::LumioImage;

namespace
{

TEST(ImageLibraryTest, InstallsNoSignalHandlers)
{
    initializeImageLibrary("/usr/bin/grisal");
    initializeImageLibrary(nullptr);
    for (const int signal : {SIGABRT, SIGINT, SIGTERM, SIGXCPU}) {
        struct sigaction action = {};
        sigaction(signal, nullptr, &action);
        EXPECT_EQ(action.sa_handler, SIG_DFL) << "signal " << signal;
    }
}

// By default the signal would end the process.
TEST(ImageLibraryTest, WritesBeyondALimitFail)
{
    initializeImageLibrary(nullptr);
    struct sigaction action = {};
    sigaction(SIGXFSZ, nullptr, &action);
    EXPECT_EQ(action.sa_handler, SIG_IGN);
}

TEST(ImageLibraryTest, SetsLimits)
{
    initializeImageLibrary(nullptr);
    EXPECT_EQ(MagickLib::GetMagickResourceLimit(MagickLib::WidthResource), 65500);
    EXPECT_EQ(MagickLib::GetMagickResourceLimit(MagickLib::HeightResource), 65500);
    EXPECT_EQ(MagickLib::GetMagickResourceLimit(MagickLib::PixelsResource), 1000000000);
    EXPECT_EQ(MagickLib::GetMagickResourceLimit(MagickLib::DiskResource), 0);
    EXPECT_GT(MagickLib::GetMagickResourceLimit(MagickLib::MemoryResource), 0);
}

TEST(LumioImageTest, IsNullInitially)
{
    const LumioImage image;
    EXPECT_TRUE(image.isNull());
    EXPECT_EQ(image.width(), 0);
    EXPECT_EQ(image.height(), 0);
    EXPECT_TRUE(image.problem().isEmpty());
}

TEST(LumioImageTest, FailsToCopyPixelsOfANullImage)
{
    LumioImage image;
    std::uint8_t untouched = 77;
    EXPECT_FALSE(image.getPixels(&untouched, false, false));
    EXPECT_FALSE(image.problem().isEmpty());
    EXPECT_FALSE(image.setPixels(&untouched, false, false));
    EXPECT_EQ(untouched, 77);
}

TEST(LumioImageTest, IsMadeWithItsSizeAndDepth)
{
    const LumioImage byteImage(7, 5, false);
    EXPECT_FALSE(byteImage.isNull());
    EXPECT_EQ(byteImage.width(), 7);
    EXPECT_EQ(byteImage.height(), 5);
    EXPECT_FALSE(byteImage.is16Bit());
    EXPECT_TRUE(LumioImage(7, 5, true).is16Bit());
}

TEST(LumioImageTest, IsBlackUntilPixelsAreSet)
{
    for (const bool sixteenBit : {false, true}) {
        LumioImage image(5, 3, sixteenBit);
        LumioImage copy = image;
        EXPECT_EQ(bytesOf(image), Bytes(45, 0));
        EXPECT_EQ(samples16Of(copy), Samples16(45, 0));
        const Bytes bytes(45, 9);
        ASSERT_TRUE(copy.setPixels(bytes.data(), false, false));
        EXPECT_EQ(bytesOf(copy), bytes);
        EXPECT_EQ(bytesOf(image), Bytes(45, 0));
    }
}

TEST(LumioImageTest, IsNullWhenMadeLargerThanTheMemory)
{
    constexpr int longest = 1'000'000;
    LumioImage image(longest, longest, true);
    EXPECT_TRUE(image.isNull());
    EXPECT_FALSE(image.problem().isEmpty());
    std::uint8_t untouched = 77;
    EXPECT_FALSE(image.getPixels(&untouched, false, false));
    EXPECT_FALSE(image.setPixels(&untouched, false, false));
    EXPECT_EQ(untouched, 77);
}

TEST(LumioImageTest, IsNullWhenMadeWithoutPixels)
{
    for (const auto &[width, height] : {std::pair(0, 5), std::pair(5, 0), std::pair(-3, 4)}) {
        const LumioImage image(width, height, false);
        EXPECT_TRUE(image.isNull()) << width << " x " << height;
        EXPECT_FALSE(image.problem().isEmpty());
    }
}

TEST(LumioImageTest, KeepsAByteInTheHighByteOfASample)
{
    const Bytes bytes{0, 1, 255};
    LumioImage image = pictureOf(bytes, 1, 1);
    EXPECT_EQ(samples16Of(image), (Samples16{0, 256, 65280}));
    EXPECT_EQ(bytesOf(image), bytes);
    const Samples16 samples{1, 257, 65535};
    ASSERT_TRUE(image.setPixels(samples.data(), false, true));
    EXPECT_EQ(samples16Of(image), samples);
}

TEST(LumioImageTest, ReturnsEveryByteUnchanged)
{
    Bytes bytes(256 * 3);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
    LumioImage image = pictureOf(bytes, 16, 16);
    EXPECT_EQ(bytesOf(image), bytes);
}

TEST(LumioImageTest, ReturnsEvery16BitSampleUnchanged)
{
    Samples16 samples(std::size_t{65536} * 3);
    std::iota(samples.begin(), samples.end(), std::uint16_t{0});
    LumioImage image = pictureOf(samples, 256, 256);
    EXPECT_EQ(samples16Of(image), samples);
}

TEST(LumioImageTest, ReturnsTheHighBytesOf16BitSamples)
{
    LumioImage image = pictureOf(Samples16{0x00ff, 0x1234, 0xffff}, 1, 1);
    EXPECT_EQ(bytesOf(image), (Bytes{0x00, 0x12, 0xff}));
}

TEST(LumioImageTest, CopiesTheOpacityByteUnscaled)
{
    LumioImage image(2, 1, false);
    ASSERT_TRUE(image.setPixels(Bytes{1, 2, 3, 4, 5, 6, 7, 8}.data(), true, false));

    Bytes bytes(8);
    ASSERT_TRUE(image.getPixels(bytes.data(), true, false));
    EXPECT_EQ(bytes, (Bytes{1, 2, 3, 4, 5, 6, 7, 8}));

    Samples16 samples(8);
    ASSERT_TRUE(image.getPixels(samples.data(), true, true));
    EXPECT_EQ(samples, (Samples16{256, 512, 768, 4, 1280, 1536, 1792, 8}));
}

TEST(LumioImageTest, CopiesThe16BitOpacityUnscaled)
{
    LumioImage image(1, 1, true);
    ASSERT_TRUE(image.setPixels(Samples16{1, 2, 3, 0x1234}.data(), true, true));

    Samples16 samples(4);
    ASSERT_TRUE(image.getPixels(samples.data(), true, true));
    EXPECT_EQ(samples, (Samples16{1, 2, 3, 0x1234}));
}

// Unlike the high byte of the colours.
TEST(LumioImageTest, ReturnsTheLowByteOfTheOpacity)
{
    LumioImage image(1, 1, true);
    ASSERT_TRUE(image.setPixels(Samples16{0x1122, 0x3344, 0x5566, 0x7788}.data(), true, true));

    Bytes bytes(4);
    ASSERT_TRUE(image.getPixels(bytes.data(), true, false));
    EXPECT_EQ(bytes, (Bytes{0x11, 0x33, 0x55, 0x88}));
}

TEST(LumioImageTest, SetsTheLargestOpacityOfTheBufferWithoutAlpha)
{
    Samples16 samples(4);
    LumioImage byteImage = pictureOf(Bytes{1, 2, 3}, 1, 1);
    ASSERT_TRUE(byteImage.getPixels(samples.data(), true, true));
    EXPECT_EQ(samples[3], 255);

    LumioImage image16 = pictureOf(Samples16{1, 2, 3}, 1, 1);
    ASSERT_TRUE(image16.getPixels(samples.data(), true, true));
    EXPECT_EQ(samples[3], 65535);
}

TEST(LumioImageTest, WritesNothingBehindTheLastPixel)
{
    LumioImage image = pictureOf(Bytes{10, 20, 30, 40, 50, 60}, 2, 1);
    Bytes bytes(8, 99);
    ASSERT_TRUE(image.getPixels(bytes.data(), false, false));
    EXPECT_EQ(bytes, (Bytes{10, 20, 30, 40, 50, 60, 99, 99}));

    Samples16 samples(8, 999);
    ASSERT_TRUE(image.getPixels(samples.data(), false, true));
    EXPECT_EQ(samples[6], 999);
    EXPECT_EQ(samples[7], 999);
}

TEST(LumioImageTest, CopiesAreIndependent)
{
    const LumioImage original = pictureOf(Bytes{1, 2, 3}, 1, 1);
    LumioImage copy = original;
    ASSERT_TRUE(copy.setPixels(Bytes{9, 9, 9}.data(), false, false));
    LumioImage again = original;
    EXPECT_EQ(bytesOf(again), (Bytes{1, 2, 3}));
}

class UnalignedWidths : public testing::TestWithParam<int>
{
};

TEST_P(UnalignedWidths, RowsFollowEachOtherWithoutPadding)
{
    const int width = GetParam();
    Samples16 samples(static_cast<std::size_t>(width) * 3 * 3);
    std::iota(samples.begin(), samples.end(), std::uint16_t{300});
    LumioImage image16 = pictureOf(samples, width, 3);
    EXPECT_EQ(samples16Of(image16), samples);

    const Bytes bytes(samples.begin(), samples.end());
    LumioImage byteImage = pictureOf(bytes, width, 3);
    EXPECT_EQ(bytesOf(byteImage), bytes);
}

INSTANTIATE_TEST_SUITE_P(LumioImageTest, UnalignedWidths, testing::Values(1, 3, 5, 1001));

TEST(LumioImageInfoTest, DescribesAFile)
{
    const QTemporaryDir directory;
    const std::string path = directory.filePath("colours.png").toStdString();
    painted(5, 3, 8, [](int x, int y) -> Samples {
        return {static_cast<std::uint16_t>(x * 257 * 50), static_cast<std::uint16_t>(y * 257 * 80), 0};
    }).write(path);

    LumioImage image;
    ASSERT_TRUE(image.read(QString::fromStdString(path)));
    EXPECT_EQ(image.info(), "\n"
                            " ******** LumioImage ******** \n"
                            "  filename:   " +
                                path +
                                "\n"
                                "  width :     5\n"
                                "  height:     3\n"
                                "  depth:      8\n"
                                "  colorspace: RGBColorspace\n"
                                "  intent:     UndefinedIntent\n"
                                "  type:       TrueColorType\n"
                                "  quantize:   256\n"
                                " ************************* \n"
                                "\n");
}

TEST(LumioImageInfoTest, DescribesAGreyImageOf16Bits)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("grey.tif");
    Magick::Image grey = painted(4, 4, 16, [](int x, int y) -> Samples {
        const auto level = static_cast<std::uint16_t>(x * 4001 + y);
        return {level, level, level};
    });
    grey.type(Magick::GrayscaleType);
    grey.write(path.toStdString());

    LumioImage image;
    ASSERT_TRUE(image.read(path));
    EXPECT_NE(image.info().find("  depth:      16\n"), std::string::npos);
    EXPECT_NE(image.info().find("  type:       GrayscaleType\n"), std::string::npos);
}

TEST(LumioImageInfoTest, EscapesALineBreakInTheName)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("a\n  width :     9.png"));
    painted(5, 3, 8, [](int, int) { return Samples{1, 2, 3}; }).write("PNG:" + QFile::encodeName(path).toStdString());

    LumioImage image;
    ASSERT_TRUE(image.read(path));
    EXPECT_NE(image.info().find("/a\\n  width :     9.png\n  width :     5\n"), std::string::npos) << image.info();
}

TEST(LumioImageInfoTest, DescribesANullImage)
{
    EXPECT_NE(LumioImage().info().find("  width :     0\n  height:     0\n"), std::string::npos);
}

} // namespace
