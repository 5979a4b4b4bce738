// SPDX-License-Identifier: MIT
// Changing the rows of an image in place gives the same files as copying its pixels into a new image.
#include "graphics/files/ImageConversion.h"
#include "tests/graphics/files/Corpus.h"
#include "tests/graphics/files/PictureFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <stdexcept>

namespace grisal::test
{

namespace
{

using graphics::Image;
using graphics::LumioImage;

constexpr int quality = 90;
constexpr int width = 37;
constexpr int height = 41; // two blocks and a part of one

/// A change that depends on the position.
void change(Image &rows, int firstRow)
{
    std::visit(
        [&](auto &raster) {
            std::size_t i = static_cast<std::size_t>(firstRow) * static_cast<std::size_t>(raster.width) * 3;
            for (auto &sample : raster.samples) {
                sample = static_cast<std::decay_t<decltype(sample)>>(~sample + i++ % 7);
            }
        },
        rows);
}

class LumioImageRows : public testing::Test
{
protected:
    QString path(const char *name) const { return directory.filePath(QString::fromLatin1(name)); }

    Magick::Image magickImage(int depth) const
    {
        return painted(width, height, depth, [](int x, int y) {
            return Samples{static_cast<std::uint16_t>(x * 1700), static_cast<std::uint16_t>(y * 1500),
                           static_cast<std::uint16_t>(x * y * 40)};
        });
    }

    void expectTheSameFiles(const QString &source)
    {
        LumioImage inPlace;
        LumioImage opened;
        ASSERT_TRUE(inPlace.read(source) && opened.read(source)) << source.toStdString();
        Image image = graphics::imageOf(opened);
        change(image, 0);
        LumioImage copy = graphics::fileOf(image);
        copy.setMetadata(opened.metadata());
        ASSERT_TRUE(inPlace.transformRows(change));
        for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
            ASSERT_TRUE(copy.save(path(name), quality));
            const QByteArray expected = contentsOf(path(name));
            ASSERT_TRUE(inPlace.save(path(name), quality));
            EXPECT_TRUE(contentsOf(path(name)) == expected) << name << " from " << source.toStdString();
        }
    }

    const QTemporaryDir directory;
};

} // namespace

TEST_F(LumioImageRows, GiveTheSameFilesAsACopyAtEveryDepth)
{
    for (const auto &[name, depth] : {std::pair("s.png", 8), std::pair("s.png", 16), std::pair("s.tif", 16)}) {
        magickImage(depth).write(path(name).toStdString());
        expectTheSameFiles(path(name));
    }
}

TEST_F(LumioImageRows, DoNotKeepTheEncodingOfTheSource)
{
    Magick::Image progressive = magickImage(8);
    progressive.interlaceType(Magick::PlaneInterlace);
    progressive.density(Magick::Geometry(300, 200));
    progressive.resolutionUnits(Magick::PixelsPerInchResolution);
    progressive.write(path("s.jpg").toStdString());
    expectTheSameFiles(path("s.jpg"));

    Magick::Image png = magickImage(8);
    png.gamma(0.7);
    png.chromaWhitePoint(0.31, 0.33);
    png.chromaRedPrimary(0.6, 0.3);
    png.chromaGreenPrimary(0.3, 0.6);
    png.chromaBluePrimary(0.15, 0.06);
    png.renderingIntent(Magick::SaturationIntent);
    png.page(Magick::Geometry(width, height, 5, 6));
    png.interlaceType(Magick::PlaneInterlace);
    png.write(path("s.png").toStdString());
    expectTheSameFiles(path("s.png"));

    Magick::Image tiff = magickImage(16);
    tiff.endian(Magick::MSBEndian);
    tiff.compressType(Magick::LZWCompression);
    tiff.write(path("s.tif").toStdString());
    expectTheSameFiles(path("s.tif"));
}

TEST_F(LumioImageRows, DoNotKeepThatTheSourceIsGreyOrHasAPalette)
{
    Magick::Image grey = magickImage(8);
    grey.type(Magick::GrayscaleType);
    grey.write(path("s.jpg").toStdString());
    expectTheSameFiles(path("s.jpg"));

    Magick::Image palette = magickImage(8);
    palette.quantizeColors(16);
    palette.quantize();
    palette.type(Magick::PaletteType);
    palette.write(path("s.png").toStdString());
    expectTheSameFiles(path("s.png"));

    Magick::Image black = magickImage(8);
    black.type(Magick::BilevelType);
    black.write(path("s.tif").toStdString());
    expectTheSameFiles(path("s.tif"));
}

TEST_F(LumioImageRows, GiveTheSameFilesForEveryFileOfTheCorpus)
{
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "GRISAL_CORPUS is not set";
    }
    int compared = 0;
    for (const QString &source : realPictures()) {
        LumioImage image;
        constexpr int mostPixels = 300'000;
        if (image.read(source) && image.width() * image.height() <= mostPixels) {
            expectTheSameFiles(source);
            ++compared;
        }
    }
    EXPECT_GT(compared, 100);
}

TEST_F(LumioImageRows, PassBlocksOfWholeRowsFromTopToBottom)
{
    magickImage(8).write(path("s.png").toStdString());
    LumioImage image;
    ASSERT_TRUE(image.read(path("s.png")));
    int next = 0;
    ASSERT_TRUE(image.transformRows([&](Image &rows, int firstRow) {
        EXPECT_EQ(firstRow, next);
        EXPECT_EQ(widthOf(rows), width);
        next += heightOf(rows);
    }));
    EXPECT_EQ(next, height);
}

TEST_F(LumioImageRows, PixelsThatAreCopiedInAfterwardsAreSaved)
{
    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    ASSERT_TRUE(image.transformRows(change));
    const Bytes bytes{9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 255, 254};
    ASSERT_TRUE(image.setPixels(bytes.data(), false, false));
    ASSERT_TRUE(image.save(path("a.png"), quality));
    EXPECT_EQ(samplesOf(path("a.png")), spread(bytes));
}

TEST_F(LumioImageRows, ProblemsAreReported)
{
    EXPECT_FALSE(LumioImage().transformRows(change));

    LumioImage image = pictureOf(countedBytes(12), 2, 2);
    EXPECT_FALSE(image.transformRows([](Image & /*rows*/, int /*firstRow*/) { throw std::runtime_error("no"); }));
    EXPECT_EQ(image.problem().english(), QStringLiteral("no"));
}

} // namespace grisal::test
