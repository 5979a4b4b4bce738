// SPDX-License-Identifier: MIT
// Images that are stored rotated or mirrored have orientation 1 after reading.
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/MetadataFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

/// How an image of two rows, ABC and DEF, is stored.
struct Kept {
    int orientation;
    std::vector<std::string> rows;
};

std::ostream &operator<<(std::ostream &stream, const Kept &kept)
{
    return stream << kept.orientation;
}

const Kept allKept[] = {
    {1, {"ABC", "DEF"}},     {2, {"CBA", "FED"}},     {3, {"FED", "CBA"}},     {4, {"DEF", "ABC"}},
    {5, {"AD", "BE", "CF"}}, {6, {"CF", "BE", "AD"}}, {7, {"FC", "EB", "DA"}}, {8, {"DA", "EB", "FC"}},
    {0, {"ABC", "DEF"}},     {9, {"ABC", "DEF"}},     {300, {"ABC", "DEF"}},   {65535, {"ABC", "DEF"}},
};

/// A letter is a square of this side, a JPEG block with subsampled chroma.
constexpr int side = 16;
constexpr std::size_t normalisedWidth = std::size_t{3} * side;

Samples colourOf(char letter)
{
    const int i = letter - 'A';
    const auto sample = [](int level) { return static_cast<std::uint16_t>(level * 257); };
    return {sample(40 + i * 30), sample(200 - i * 25), sample(60 + i * i * 5)};
}

Magick::Image pictureOf(const std::vector<std::string> &rows, int depth = 8)
{
    return painted(static_cast<int>(rows[0].size()) * side, static_cast<int>(rows.size()) * side, depth,
                   [&](int x, int y) {
                       return colourOf(rows[static_cast<std::size_t>(y / side)][static_cast<std::size_t>(x / side)]);
                   });
}

std::uint8_t lumaOf(char letter)
{
    return static_cast<std::uint8_t>(20 + (letter - 'A') * 40);
}

/// Numbers of 16 bits in little-endian order.
QByteArray numbers16(const std::vector<int> &numbers)
{
    QByteArray bytes;
    for (const int number : numbers) {
        bytes += static_cast<char>(number % 256);
        bytes += static_cast<char>(number / 256);
    }
    return bytes;
}

/// A TIFF file of grey values in luma and chroma.
QByteArray lumaTiff(const Kept &kept, int rowsPerStrip)
{
    const int width = static_cast<int>(kept.rows[0].size()) * side;
    const int height = static_cast<int>(kept.rows.size()) * side;
    QByteArray pixels;
    for (int i = 0; i < width * height; ++i) {
        const std::string &row = kept.rows[static_cast<std::size_t>(i / width / side)];
        pixels += static_cast<char>(lumaOf(row[static_cast<std::size_t>(i % width / side)]));
        pixels += QByteArray(2, '\x80');
    }
    std::vector<int> places;
    std::vector<int> sizes;
    for (int row = 0; row < height; row += rowsPerStrip) {
        places.push_back(8 + row * width * 3);
        sizes.push_back(std::min(rowsPerStrip, height - row) * width * 3);
    }
    const int strips = static_cast<int>(places.size());
    const int depths = 8 + static_cast<int>(pixels.size());
    const auto valueOr = [&](const std::vector<int> &values, int place) { return strips == 1 ? values[0] : place; };
    const int placesAt = depths + 6;
    const int sizesAt = placesAt + 2 * strips;
    const int directory = sizesAt + 2 * strips;
    const auto entry = [](int tag, int count, int value) { return numbers16({tag, 3, count, 0, value, 0}); };
    return QByteArray("II*\0", 4) + numbers16({directory, 0}) + pixels + numbers16({8, 8, 8}) + numbers16(places) +
           numbers16(sizes) + numbers16({11}) + entry(256, 1, width) + entry(257, 1, height) + entry(258, 3, depths) +
           entry(259, 1, 1) + entry(262, 1, 6) + entry(273, strips, valueOr(places, placesAt)) +
           entry(274, 1, kept.orientation) + entry(277, 1, 3) + entry(278, 1, std::min(rowsPerStrip, height)) +
           entry(279, strips, valueOr(sizes, sizesAt)) + numbers16({530, 3, 2, 0, 1, 1}) + numbers16({0, 0});
}

Exiv2::ExifData exifOf(int orientation)
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
    return exif;
}

/// Expects an image of ABC over DEF, within a tolerance in 8-bit levels.
void expectNormalised(LumioImage &image, int tolerance)
{
    const std::vector<std::string> upright{"ABC", "DEF"};
    ASSERT_EQ(image.width(), 3 * side);
    ASSERT_EQ(image.height(), 2 * side);
    constexpr std::size_t margin = 4;
    const Bytes bytes = bytesOf(image);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t x = i / 3 % normalisedWidth;
        const std::size_t y = i / 3 / normalisedWidth;
        const Samples wanted = colourOf(upright[y / side][x / side]);
        // JPEG mixes the colours along the edges.
        const bool inside = std::min(x % side, y % side) >= margin && std::max(x % side, y % side) < side - margin;
        ASSERT_TRUE((tolerance > 0 && !inside) || std::abs(bytes[i] - wanted[i % 3] / 257) <= tolerance)
            << "at " << x << ", " << y;
    }
}

class Orientation : public testing::TestWithParam<Kept>
{
protected:
    QString written(const char *name, Magick::Image picture) const
    {
        QString path = directory.filePath(QString::fromLatin1(name));
        picture.quality(100);
        picture.write(path.toStdString());
        return path;
    }
    QString kept(const char *name, int depth = 8) const
    {
        QString path = written(name, pictureOf(GetParam().rows, depth));
        Metadata metadata;
        metadata.exif = exifOf(GetParam().orientation);
        setMetadata(path, metadata);
        return path;
    }

    QTemporaryDir directory;
    LumioImage image;
};

TEST_P(Orientation, NormalisesAJpeg)
{
    ASSERT_TRUE(image.read(kept("a.jpg"))) << image.problem().english().toStdString();
    expectNormalised(image, 4);
    EXPECT_TRUE(image.warning().isEmpty());
}

TEST_P(Orientation, NormalisesATiff)
{
    ASSERT_TRUE(image.read(kept("a.tif"))) << image.problem().english().toStdString();
    expectNormalised(image, 0);
}

TEST_P(Orientation, NormalisesATiffOf16Bits)
{
    ASSERT_TRUE(image.read(kept("a.tif", 16))) << image.problem().english().toStdString();
    EXPECT_TRUE(image.is16Bit());
    expectNormalised(image, 0);
}

TEST_P(Orientation, NormalisesAPngWithAnExifChunk)
{
    const QString path = written("a.png", pictureOf(GetParam().rows));
    addChunk(path, "eXIf", exifBlock(exifOf(GetParam().orientation)));
    ASSERT_TRUE(image.read(path)) << image.problem().english().toStdString();
    expectNormalised(image, 0);
}

TEST_P(Orientation, NormalisesAPngWithExifInAText)
{
    ASSERT_TRUE(image.read(kept("a.png"))) << image.problem().english().toStdString();
    EXPECT_TRUE(contentsOf(directory.filePath("a.png")).contains("Raw profile type exif"));
    expectNormalised(image, 0);
}

TEST_P(Orientation, NormalisesPaletteImages)
{
    for (const char *name : {"a.png", "a.tif"}) {
        Magick::Image picture = pictureOf(GetParam().rows);
        picture.type(Magick::PaletteType);
        const QString path = written(name, picture);
        ASSERT_EQ(channelsPerPixel(path), 1);
        Metadata metadata;
        metadata.exif = exifOf(GetParam().orientation);
        setMetadata(path, metadata);
        ASSERT_TRUE(image.read(path)) << image.problem().english().toStdString();
        expectNormalised(image, 0);
    }
}

TEST_P(Orientation, NormalisesATiffWithJpegCompression)
{
    Magick::Image picture = pictureOf(GetParam().rows);
    picture.compressType(Magick::JPEGCompression);
    const QString path = written("a.tif", picture);
    Metadata metadata;
    metadata.exif = exifOf(GetParam().orientation);
    setMetadata(path, metadata);
    ASSERT_TRUE(image.read(path)) << image.problem().english().toStdString();
    expectNormalised(image, 8);
}

// libtiff mirrors some of these images itself, strip by strip.
TEST_P(Orientation, NormalisesATiffOfLumaAndChroma)
{
    for (const int rowsPerStrip : {1, 8, 48}) {
        const QString path = directory.filePath(QStringLiteral("a%1.tif").arg(rowsPerStrip));
        writeFile(path, lumaTiff(GetParam(), rowsPerStrip));
        ASSERT_TRUE(image.read(path)) << image.problem().english().toStdString();
        ASSERT_EQ(image.width(), 3 * side);
        const Bytes bytes = bytesOf(image);
        const auto at = [&](int x, int y) {
            return bytes[static_cast<std::size_t>((y * side + 3) * 3 * side + x * side + 5) * 3];
        };
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(at(i % 3, i / 3), lumaOf(static_cast<char>('A' + i))) << rowsPerStrip << ", " << i;
        }
    }
}

TEST_P(Orientation, IsNormalInSavedFiles)
{
    for (const char *name : {"b.jpg", "b.png", "b.tif"}) {
        ASSERT_TRUE(image.read(kept("a.tif"))) << image.problem().english().toStdString();
        const QString path = directory.filePath(QString::fromLatin1(name));
        ASSERT_TRUE(image.save(path, 100));
        LumioImage again;
        ASSERT_TRUE(again.read(path));
        expectNormalised(again, 4);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Orientation, testing::ValuesIn(allKept));

TEST(OrientationInfo, ReportsTheSizeInNormalisedOrientation)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("a.jpg");
    pictureOf({"CF", "BE", "AD"}).write(path.toStdString());
    Metadata metadata;
    metadata.exif = exifOf(6);
    setMetadata(path, metadata);
    LumioImage image;
    ASSERT_TRUE(image.read(path)) << image.problem().english().toStdString();
    EXPECT_NE(image.info().find("  width :     48\n  height:     32\n"), std::string::npos) << image.info();
}

} // namespace
