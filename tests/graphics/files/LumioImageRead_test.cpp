// SPDX-License-Identifier: MIT
#include "tests/graphics/files/ImageTest.h"

#include <list>

#include <sys/stat.h>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

Samples fewColours(int x, int y)
{
    return {static_cast<std::uint16_t>(x % 2 * 0xffff), static_cast<std::uint16_t>(y % 2 * 0x8080), 0x4040};
}

Samples greys(int x, int y)
{
    const auto level = static_cast<std::uint16_t>((x * 16 + y) * 257);
    return {level, level, level};
}

Samples noise(int x, int y)
{
    const auto hash = static_cast<std::uint32_t>(x * 7919 + y * 104729) * 2654435761U;
    return {static_cast<std::uint16_t>(hash), static_cast<std::uint16_t>(hash >> 8),
            static_cast<std::uint16_t>(hash >> 16)};
}

struct LumioImageReadTest : ImageTest {
    /// A JPEG file of 64 x 48 pixels, truncated to its first half.
    QString cutJpeg() const
    {
        const QString whole = written(painted(64, 48, 8, noise), "whole.jpg");
        const QByteArray contents = contentsOf(whole);
        writeFile(path("cut.jpg"), contents.left(contents.size() / 2));
        return path("cut.jpg");
    }

    /// Contains an image of one pixel before each test.
    void hold() { image = pictureOf(Bytes{11, 22, 33}, 1, 1); }
    bool isHeld() { return image.width() == 1 && image.height() == 1 && bytesOf(image) == Bytes{11, 22, 33}; }
};

TEST_F(LumioImageReadTest, ReadsAnImage)
{
    const QString file = written(painted(6, 4, 8, fewColours), "a.png");
    ASSERT_TRUE(image.read(file));
    EXPECT_FALSE(image.isNull());
    EXPECT_EQ(image.width(), 6);
    EXPECT_EQ(image.height(), 4);
    EXPECT_TRUE(image.problem().isEmpty());
    EXPECT_TRUE(image.warning().isEmpty());
}

TEST_F(LumioImageReadTest, FailsForAMissingFileAndKeepsTheImage)
{
    hold();
    EXPECT_FALSE(image.read(path("missing.png")));
    EXPECT_FALSE(image.problem().isEmpty());
    EXPECT_TRUE(isHeld());
}

TEST_F(LumioImageReadTest, FailsForAnEmptyPath)
{
    EXPECT_FALSE(image.read(QString()));
    EXPECT_TRUE(image.isNull());
}

// GraphicsMagick creates images for such names without any file.
TEST_F(LumioImageReadTest, FailsForNamesOfBuiltInImages)
{
    EXPECT_FALSE(image.read("xc:red"));
    EXPECT_FALSE(image.read("logo:"));
    EXPECT_TRUE(image.isNull());
}

TEST_F(LumioImageReadTest, FailsForADirectory)
{
    hold();
    EXPECT_FALSE(image.read(directory.path()));
    EXPECT_TRUE(isHeld());
}

TEST_F(LumioImageReadTest, DoesNotBlockOnAPipe)
{
    const QString pipe = path("pipe.jpg");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(image.read(pipe));
}

TEST_F(LumioImageReadTest, FailsForInvalidContentsAndKeepsTheImage)
{
    hold();
    for (const QByteArray &contents : {QByteArray(), QByteArray("no picture"), QByteArray(5000, '\0')}) {
        for (const char *name : {"bad.jpg", "bad.png", "bad.tif"}) {
            writeFile(path(name), contents);
            EXPECT_FALSE(image.read(path(name))) << name << ", " << contents.size() << " bytes";
            EXPECT_FALSE(image.problem().isEmpty());
            EXPECT_TRUE(isHeld());
        }
    }
}

TEST_F(LumioImageReadTest, FailsForATruncatedPng)
{
    hold();
    const QByteArray contents = contentsOf(written(painted(64, 48, 8, noise), "whole.png"));
    writeFile(path("cut.png"), contents.left(contents.size() / 2));
    EXPECT_FALSE(image.read(path("cut.png")));
    EXPECT_TRUE(isHeld());
}

TEST_F(LumioImageReadTest, OpensATruncatedJpegWithAWarning)
{
    ASSERT_TRUE(image.read(cutJpeg()));
    EXPECT_EQ(image.width(), 64);
    EXPECT_EQ(image.height(), 48);
    EXPECT_TRUE(image.warning().english().contains("Premature end of JPEG file"))
        << image.warning().english().toStdString();
    EXPECT_TRUE(image.problem().isEmpty());
}

TEST_F(LumioImageReadTest, MessagesContainThePathOfTheFile)
{
    const QString jpeg = cutJpeg();
    ASSERT_TRUE(image.read(jpeg));
    EXPECT_TRUE(image.warning().english().contains(jpeg)) << image.warning().english().toStdString();
    EXPECT_EQ(image.info().find("/proc"), std::string::npos);
    EXPECT_NE(image.info().find("  filename:   " + jpeg.toStdString() + "\n"), std::string::npos);
    const QByteArray png = contentsOf(written(painted(64, 48, 8, noise), "whole.png"));
    writeFile(path("cut.png"), png.left(png.size() / 2));
    EXPECT_FALSE(image.read(path("cut.png")));
    EXPECT_TRUE(image.problem().english().contains(path("cut.png"))) << image.problem().english().toStdString();
    EXPECT_FALSE(image.problem().english().contains("/proc"));
}

// It declares more pixels than it can contain, which would exhaust the memory.
TEST_F(LumioImageReadTest, FailsForAFileThatIsTooSmallForItsPixels)
{
    hold();
    QByteArray jpeg = contentsOf(written(painted(64, 48, 8, fewColours), "a.jpg"));
    const auto size = jpeg.indexOf(QByteArray("\xff\xc0", 2)) + 5;
    ASSERT_GT(size, 5);
    for (const int place : {0, 2}) {
        jpeg[size + place] = 0x60; // 24,576 pixels and some
    }
    writeFile(path("b.jpg"), jpeg);
    EXPECT_FALSE(image.read(path("b.jpg")));
    EXPECT_TRUE(image.problem().english().contains("too small a file")) << image.problem().english().toStdString();
    EXPECT_TRUE(isHeld());
}

TEST_F(LumioImageReadTest, ClearsTheWarningAtTheNextOperation)
{
    ASSERT_TRUE(image.read(cutJpeg()));
    ASSERT_FALSE(image.warning().isEmpty());
    EXPECT_FALSE(image.read(path("missing.png")));
    EXPECT_TRUE(image.warning().isEmpty());
}

TEST_F(LumioImageReadTest, ClearsTheProblemAtTheNextOperation)
{
    ASSERT_FALSE(image.read(path("missing.png")));
    ASSERT_TRUE(image.read(written(painted(6, 4, 8, fewColours), "a.png")));
    EXPECT_TRUE(image.problem().isEmpty());
}

TEST_F(LumioImageReadTest, DetectsTheFormatByTheContents)
{
    const QString jpeg = written(painted(6, 4, 8, fewColours), "a.jpg");
    writeFile(path("a.png"), contentsOf(jpeg));
    writeFile(path("a"), contentsOf(jpeg));
    EXPECT_TRUE(image.read(path("a.png")));
    EXPECT_TRUE(image.read(path("a")));
}

TEST_F(LumioImageReadTest, OpensFilesWithUnusualNames)
{
    const QByteArray png = contentsOf(written(painted(6, 4, 8, fewColours), "a.png"));
    for (const QString &name : {QStringLiteral("Bäume und Höfe.png"), QStringLiteral("scan[0].png"),
                                QStringLiteral("100%d.png"), QStringLiteral("12:30.png"), QStringLiteral("a*b?.png")}) {
        writeFile(path(name), png);
        EXPECT_TRUE(image.read(path(name))) << name.toStdString() << ": " << image.problem().english().toStdString();
    }
}

TEST_F(LumioImageReadTest, GivesAGreyFileThreeEqualChannels)
{
    for (const char *name : {"grey.png", "grey.tif"}) {
        Magick::Image grey = painted(16, 16, 8, greys);
        grey.type(Magick::GrayscaleType);
        const QString file = written(grey, name);
        ASSERT_EQ(channelsPerPixel(file), 1) << name;

        ASSERT_TRUE(image.read(file));
        const Bytes bytes = bytesOf(image);
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            ASSERT_EQ(bytes[i], i / 3 % 16 * 16 + i / 3 / 16) << name << ", component " << i;
        }
    }
}

TEST_F(LumioImageReadTest, GivesAPaletteFileItsColours)
{
    for (const char *name : {"palette.png", "palette.tif"}) {
        Magick::Image palette = painted(2, 2, 8, fewColours);
        palette.type(Magick::PaletteType);
        const QString file = written(palette, name);
        ASSERT_EQ(channelsPerPixel(file), 1) << name;

        ASSERT_TRUE(image.read(file));
        EXPECT_EQ(bytesOf(image), (Bytes{0, 0, 64, 255, 0, 64, 0, 128, 64, 255, 128, 64})) << name;
        EXPECT_FALSE(image.is16Bit());
    }
}

TEST_F(LumioImageReadTest, GivesAOneBitFileBlackAndWhite)
{
    for (const char *name : {"line.png", "line.tif"}) {
        Magick::Image line = painted(2, 1, 8, [](int x, int) -> Samples {
            const auto level = static_cast<std::uint16_t>(x * 0xffff);
            return {level, level, level};
        });
        line.type(Magick::BilevelType);
        const QString file = written(line, name);
        ASSERT_EQ(bitsPerChannel(file), 1) << name;

        ASSERT_TRUE(image.read(file));
        EXPECT_EQ(bytesOf(image), (Bytes{0, 0, 0, 255, 255, 255})) << name;
        EXPECT_FALSE(image.is16Bit());
    }
}

TEST_F(LumioImageReadTest, ConvertsCmykToRgb)
{
    Magick::Image cmyk = painted(2, 1, 8, [](int x, int) -> Samples {
        return {0xffff, static_cast<std::uint16_t>(x * 0xffff), 0};
    });
    cmyk.colorSpace(Magick::CMYKColorspace);
    cmyk.type(Magick::ColorSeparationType);
    const QString file = written(cmyk, "cmyk.tif");
    ASSERT_EQ(channelsPerPixel(file), 4);

    ASSERT_TRUE(image.read(file));
    EXPECT_EQ(bytesOf(image), (Bytes{255, 0, 0, 255, 255, 0}));
}

TEST_F(LumioImageReadTest, KeepsTheColoursOfTransparentPixels)
{
    for (const char *name : {"clear.png", "clear.tif"}) {
        Magick::Image clear = painted(2, 1, 8, fewColours);
        clear.type(Magick::TrueColorMatteType);
        clear.matte(true);
        Magick::PixelPacket *pixels = clear.getPixels(0, 0, 2, 1);
        pixels[0].opacity = 0x8080;
        pixels[1].opacity = 0xffff;
        clear.syncPixels();
        const QString file = written(clear, name);
        ASSERT_EQ(channelsPerPixel(file), 4) << name;

        ASSERT_TRUE(image.read(file));
        EXPECT_EQ(bytesOf(image), (Bytes{0, 0, 64, 255, 0, 64})) << name;
    }
}

TEST_F(LumioImageReadTest, ReportsTheDepthOfAFile)
{
    for (const char *name : {"deep.png", "deep.tif"}) {
        ASSERT_TRUE(image.read(written(painted(8, 8, 16, noise), name)));
        EXPECT_TRUE(image.is16Bit()) << name;
        ASSERT_TRUE(image.read(written(painted(8, 8, 8, noise), name)));
        EXPECT_FALSE(image.is16Bit()) << name;
    }
}

TEST_F(LumioImageReadTest, ReadsTheExactSamplesOf16Bits)
{
    for (const char *name : {"deep.png", "deep.tif"}) {
        ASSERT_TRUE(image.read(written(painted(3, 1, 16, noise), name)));
        Samples16 expected;
        for (int x = 0; x < 3; ++x) {
            const Samples samples = noise(x, 0);
            expected.insert(expected.end(), samples.begin(), samples.end());
        }
        EXPECT_EQ(samples16Of(image), expected) << name;
    }
}

// More than 8 bits are processed as 16.
TEST_F(LumioImageReadTest, ReadsTwelveBitsAsSixteen)
{
    Magick::Image twelve = painted(8, 8, 16, noise);
    twelve.defineValue("tiff", "bits-per-sample", "12");
    const QString file = written(twelve, "twelve.tif");
    ASSERT_EQ(bitsPerChannel(file), 12);
    ASSERT_TRUE(image.read(file));
    EXPECT_TRUE(image.is16Bit());
}

TEST_F(LumioImageReadTest, ReadsTheFirstPageOfSeveral)
{
    std::list<Magick::Image> pages{painted(6, 4, 8, fewColours), painted(9, 9, 8, greys)};
    Magick::writeImages(pages.begin(), pages.end(), path("pages.tif").toStdString());
    ASSERT_TRUE(image.read(path("pages.tif"))) << image.problem().english().toStdString();
    EXPECT_EQ(image.width(), 6);
    EXPECT_EQ(image.height(), 4);
}

} // namespace
