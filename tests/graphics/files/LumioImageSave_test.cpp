// SPDX-License-Identifier: MIT
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <vector>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

constexpr int quality = 90;

struct LumioImageSaveTest : testing::Test {
    QTemporaryDir directory;

    QString path(const QString &name) const { return directory.filePath(name); }
};

TEST_F(LumioImageSaveTest, ReportsANullImageOnStandardOutput)
{
    LumioImage image;
    testing::internal::CaptureStdout();
    EXPECT_FALSE(image.save(path("a.png"), quality));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "save: Image is not valid\n");
    EXPECT_FALSE(image.problem().isEmpty());
    EXPECT_FALSE(QFile::exists(path("a.png")));
}

TEST_F(LumioImageSaveTest, WritesTheFormatOfTheExtension)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    const auto starts = [&](const char *name, const QByteArray &magic) {
        return image.save(path(name), quality) && contentsOf(path(name)).startsWith(magic);
    };
    EXPECT_TRUE(starts("a.png", "\x89PNG"));
    EXPECT_TRUE(starts("a.tif", "II*"));
    EXPECT_TRUE(starts("a.TIFF", "II*"));
    EXPECT_TRUE(starts("a.jpg", "\xff\xd8"));
    EXPECT_TRUE(starts("a.JPEG", "\xff\xd8"));
}

TEST_F(LumioImageSaveTest, FailsForAnUnknownExtension)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    EXPECT_FALSE(image.save(path("a.unknown"), quality));
    EXPECT_FALSE(image.problem().isEmpty());
    EXPECT_EQ(bytesOf(image), countedBytes(12));
}

TEST_F(LumioImageSaveTest, FailsForAMissingFolder)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    EXPECT_FALSE(image.save(path("nowhere/a.png"), quality));
    EXPECT_FALSE(image.problem().isEmpty());
}

TEST_F(LumioImageSaveTest, FailsOnAFullDisk)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    for (const char *name : {"full.png", "full.jpg", "full.tif"}) {
        ASSERT_TRUE(QFile::link("/dev/full", path(name)));
        EXPECT_FALSE(image.save(path(name), quality)) << name;
        EXPECT_FALSE(image.problem().isEmpty()) << name;
    }
}

// GraphicsMagick would read such a prefix as the format and write to another file.
TEST_F(LumioImageSaveTest, IgnoresAFormatPrefixInTheName)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    EXPECT_FALSE(image.save("png:" + path("a.png"), quality));
    EXPECT_FALSE(image.problem().isEmpty());
    EXPECT_FALSE(QFile::exists(path("a.png")));
    EXPECT_TRUE(image.save(path("png:a.jpg"), quality));
    EXPECT_TRUE(contentsOf(path("png:a.jpg")).startsWith("\xff\xd8"));
}

// GraphicsMagick writes the name of the file that it is given into TIFF files.
TEST_F(LumioImageSaveTest, WritesNoFolderNamesIntoTheFile)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    for (const char *name : {"a.tif", "a.png", "a.jpg"}) {
        ASSERT_TRUE(image.save(path(name), quality)) << name;
        EXPECT_FALSE(contentsOf(path(name)).contains(QFile::encodeName(directory.path()))) << name;
    }
}

TEST_F(LumioImageSaveTest, ClearsTheProblemAtTheNextSave)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    ASSERT_FALSE(image.save(path("nowhere/a.png"), quality));
    ASSERT_TRUE(image.save(path("a.png"), quality));
    EXPECT_TRUE(image.problem().isEmpty());
}

TEST_F(LumioImageSaveTest, ReplacesAnExistingFile)
{
    writeFile(path("a.png"), QByteArray(100000, 'x'));
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    ASSERT_TRUE(image.save(path("a.png"), quality));
    EXPECT_EQ(samplesOf(path("a.png")), spread(countedBytes(12)));
}

TEST_F(LumioImageSaveTest, WritesNothingToStandardErrorWhenSavedAgain)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(image.save(path("a.png"), quality));
    EXPECT_TRUE(image.save(path("a.png"), quality));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// GraphicsMagick sets a default resolution when it writes a JPEG file.
TEST_F(LumioImageSaveTest, KeepsNoResolutionFromAJpegForTheNextFile)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    ASSERT_TRUE(image.save(path("first.png"), quality));
    ASSERT_TRUE(image.save(path("a.jpg"), quality));
    ASSERT_TRUE(image.save(path("second.png"), quality));
    EXPECT_EQ(contentsOf(path("second.png")).size(), contentsOf(path("first.png")).size());
}

TEST_F(LumioImageSaveTest, WritesToUnusualNames)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    for (const QString &name : {QStringLiteral("Bäume.png"), QStringLiteral("100%d.png"), QStringLiteral("a[1].png")}) {
        EXPECT_TRUE(image.save(path(name), quality)) << name.toStdString();
        EXPECT_TRUE(QFile::exists(path(name))) << name.toStdString();
    }
}

TEST_F(LumioImageSaveTest, WritesSmallerFilesAtALowerQuality)
{
    const Bytes bytes = countedBytes(std::size_t{64} * 64 * 3);
    LumioImage image = pictureOf(bytes, 64, 64);
    ASSERT_TRUE(image.save(path("fine.jpg"), quality));
    ASSERT_TRUE(image.save(path("coarse.jpg"), 20));
    EXPECT_LT(contentsOf(path("coarse.jpg")).size(), contentsOf(path("fine.jpg")).size());
}

// Optimised tables would need all coefficients of the image in memory.
TEST_F(LumioImageSaveTest, WritesAJpegWithStandardHuffmanTables)
{
    ASSERT_TRUE(pictureOf(countedBytes(std::size_t{16} * 16 * 3), 16, 16).save(path("a.jpg"), quality));
    const QByteArray file = contentsOf(path("a.jpg"));
    std::vector<int> lengths;
    for (auto at = file.indexOf("\xff\xc4"); at >= 0; at = file.indexOf("\xff\xc4", at + 2)) {
        lengths.push_back(static_cast<std::uint8_t>(file[at + 2]) * 256 + static_cast<std::uint8_t>(file[at + 3]));
    }
    EXPECT_EQ(lengths, (std::vector<int>{31, 181, 31, 181}));
}

TEST_F(LumioImageSaveTest, WritesAGreyJpegCloseToItsBytes)
{
    Bytes bytes;
    for (int i = 0; i < 64 * 16; ++i) {
        bytes.insert(bytes.end(), 3, static_cast<std::uint8_t>(i % 64 * 4));
    }
    LumioImage image = pictureOf(bytes, 64, 16);
    ASSERT_TRUE(image.save(path("a.jpg"), quality));

    ASSERT_TRUE(image.read(path("a.jpg")));
    EXPECT_FALSE(image.is16Bit());
    const Bytes saved = bytesOf(image);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        ASSERT_NEAR(saved[i], bytes[i], 4) << "component " << i;
    }
}

TEST_F(LumioImageSaveTest, KeepsThePixels)
{
    LumioImage byteImage = pictureOf(countedBytes(12), 2, 2);
    ASSERT_TRUE(byteImage.save(path("a.png"), quality));
    EXPECT_EQ(bytesOf(byteImage), countedBytes(12));

    const Samples16 samples16{1, 2, 3, 400, 50000, 65535};
    LumioImage image16 = pictureOf(samples16, 2, 1);
    ASSERT_TRUE(image16.save(path("b.png"), quality));
    EXPECT_EQ(samples16Of(image16), samples16);
}

// Only samples of 8-bit images are spread.
TEST_F(LumioImageSaveTest, Writes8BitSamplesOfA16BitImageAsHighBytes)
{
    LumioImage image(2, 1, true);
    ASSERT_TRUE(image.setPixels(Bytes{0, 1, 127, 128, 254, 255}.data(), false, false));
    const Samples16 highBytes{0, 1 << 8, 127 << 8, 128 << 8, 254 << 8, 255 << 8};
    EXPECT_EQ(samples16Of(image), highBytes);
    for (const char *name : {"a.png", "a.tif"}) {
        ASSERT_TRUE(image.save(path(name), quality));
        EXPECT_EQ(bitsPerChannel(path(name)), 16) << name;
        EXPECT_EQ(samplesOf(path(name)), highBytes) << name;
    }
}

TEST_F(LumioImageSaveTest, DropsTheAlphaOfItsSource)
{
    Magick::Image clear = painted(2, 2, 8, [](int, int) -> Samples { return {0xffff, 0x8080, 0}; });
    clear.type(Magick::TrueColorMatteType);
    clear.opacity(0x4040);
    clear.write(path("clear.png").toStdString());

    LumioImage image;
    ASSERT_TRUE(image.read(path("clear.png")));
    for (const char *name : {"a.png", "a.tif"}) {
        ASSERT_TRUE(image.save(path(name), quality));
        EXPECT_EQ(channelsPerPixel(path(name)), 3) << name;
        EXPECT_EQ(samplesOf(path(name)), spread({255, 128, 0, 255, 128, 0, 255, 128, 0, 255, 128, 0})) << name;
    }
}

// By default GraphicsMagick keeps the compression of the source, which here is lossy.
TEST_F(LumioImageSaveTest, SavesAJpegWithoutLossAsTiff)
{
    LumioImage image = pictureOf(countedBytes(48), 4, 4);
    ASSERT_TRUE(image.save(path("a.jpg"), quality));
    ASSERT_TRUE(image.read(path("a.jpg")));
    const Bytes bytes = bytesOf(image);
    ASSERT_TRUE(image.save(path("a.tif"), quality));
    EXPECT_EQ(samplesOf(path("a.tif")), spread(bytes));
}

} // namespace
