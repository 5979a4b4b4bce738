// SPDX-License-Identifier: MIT
// The depth and the channels of saved files, for contents and sources that could be written with fewer.
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

constexpr int quality = 90;

/// Contents for which GraphicsMagick would by default write fewer or more bits, or fewer channels, than requested.
struct Reducible {
    const char *name;
    Samples (*painter)(int x, int y);
};

Samples grey(int level)
{
    const auto sample = static_cast<std::uint16_t>(level * 257);
    return {sample, sample, sample};
}

const Reducible reducibleContents[] = {
    {"black", [](int, int) { return grey(0); }},
    {"white", [](int, int) { return grey(255); }},
    {"lines", [](int x, int) { return grey(x % 2 * 255); }},
    {"greys", [](int x, int y) { return grey(x * 16 + y); }},
    {"few_colours",
     [](int x, int) {
         return Samples{static_cast<std::uint16_t>(x % 2 * 0xffff), 0, 0x8080};
     }},
    {"multiples_of_257",
     [](int x, int y) {
         return Samples{static_cast<std::uint16_t>(x * 257), static_cast<std::uint16_t>(y * 257), 257};
     }},
};

class ReducibleContents : public testing::TestWithParam<std::tuple<Reducible, const char *, int>>
{
protected:
    static constexpr int side = 16;

    Samples16 samples16() const
    {
        Samples16 all;
        for (int i = 0; i < side * side; ++i) {
            const Samples samples = std::get<0>(GetParam()).painter(i % side, i / side);
            all.insert(all.end(), samples.begin(), samples.end());
        }
        return all;
    }
    Bytes highBytes() const
    {
        Bytes bytes;
        for (const std::uint16_t sample : samples16()) {
            bytes.push_back(static_cast<std::uint8_t>(sample >> 8));
        }
        return bytes;
    }
    QString fileName(const QString &stem) const { return directory.filePath(stem + std::get<1>(GetParam())); }
    int depth() const { return std::get<2>(GetParam()); }
    LumioImage picture() const
    {
        return depth() == 16 ? pictureOf(samples16(), side, side) : pictureOf(highBytes(), side, side);
    }

    QTemporaryDir directory;
};

TEST_P(ReducibleContents, AreWrittenWithTheDepthOfTheImage)
{
    ASSERT_TRUE(picture().save(fileName("a"), quality));
    EXPECT_EQ(bitsPerChannel(fileName("a")), depth());
    EXPECT_EQ(channelsPerPixel(fileName("a")), 3);
    EXPECT_EQ(samplesOf(fileName("a")), samples16());
}

TEST_P(ReducibleContents, StayTheSameFromFileToFile)
{
    ASSERT_TRUE(picture().save(fileName("0"), quality));
    for (int i = 0; i < 3; ++i) {
        LumioImage image;
        ASSERT_TRUE(image.read(fileName(QString::number(i))));
        ASSERT_TRUE(image.save(fileName(QString::number(i + 1)), quality));
    }
    EXPECT_EQ(bitsPerChannel(fileName("3")), depth());
    EXPECT_EQ(samplesOf(fileName("3")), samples16());
}

TEST_P(ReducibleContents, StayTheSameThroughAnOutputImage)
{
    ASSERT_TRUE(picture().save(fileName("0"), quality));
    for (int i = 0; i < 3; ++i) {
        LumioImage source;
        ASSERT_TRUE(source.read(fileName(QString::number(i))));
        ASSERT_EQ(source.is16Bit(), depth() == 16);
        LumioImage output =
            source.is16Bit() ? pictureOf(samples16Of(source), side, side) : pictureOf(bytesOf(source), side, side);
        ASSERT_TRUE(output.save(fileName(QString::number(i + 1)), quality));
    }
    EXPECT_EQ(bitsPerChannel(fileName("3")), depth());
    EXPECT_EQ(samplesOf(fileName("3")), samples16());
}

INSTANTIATE_TEST_SUITE_P(LumioImageDepth, ReducibleContents,
                         testing::Combine(testing::ValuesIn(reducibleContents), testing::Values(".png", ".tif"),
                                          testing::Values(8, 16)),
                         [](const auto &test) {
                             return std::string(std::get<0>(test.param).name) + "_" + (std::get<1>(test.param) + 1) +
                                    "_" + std::to_string(std::get<2>(test.param));
                         });

/// Sources of other types: palette, grey and bilevel images.
class OtherSources : public testing::TestWithParam<std::tuple<Magick::ImageType, const char *, const char *>>
{
};

TEST_P(OtherSources, AreWrittenAsEightBitTrueColour)
{
    const auto &[type, sourceName, targetName] = GetParam();
    const QTemporaryDir directory;
    Magick::Image picture = painted(16, 16, 8, [](int x, int y) -> Samples {
        return {static_cast<std::uint16_t>(x / 4 * 0x5555), static_cast<std::uint16_t>(y / 4 * 0x5555), 0};
    });
    picture.type(type);
    picture.write(directory.filePath(sourceName).toStdString());

    LumioImage image;
    ASSERT_TRUE(image.read(directory.filePath(sourceName)));
    const Bytes bytes = bytesOf(image);
    ASSERT_TRUE(image.read(directory.filePath(sourceName)));
    ASSERT_TRUE(image.save(directory.filePath(targetName), quality));
    EXPECT_EQ(bitsPerChannel(directory.filePath(targetName)), 8);
    EXPECT_EQ(channelsPerPixel(directory.filePath(targetName)), 3);
    EXPECT_EQ(samplesOf(directory.filePath(targetName)), spread(bytes));
}

INSTANTIATE_TEST_SUITE_P(LumioImageDepth, OtherSources,
                         testing::Combine(testing::Values(Magick::BilevelType, Magick::GrayscaleType,
                                                          Magick::PaletteType),
                                          testing::Values("a.png", "a.tif"), testing::Values("b.png", "b.tif")));

class SavedWidths : public testing::TestWithParam<int>
{
};

TEST_P(SavedWidths, AreReadBackUnchanged)
{
    const int width = GetParam();
    const QTemporaryDir directory;
    const Bytes bytes = countedBytes(static_cast<std::size_t>(width) * 3 * 3);
    for (const char *name : {"a.png", "a.tif"}) {
        LumioImage image = pictureOf(bytes, width, 3);
        ASSERT_TRUE(image.save(directory.filePath(name), quality));
        ASSERT_TRUE(image.read(directory.filePath(name)));
        EXPECT_EQ(image.width(), width);
        EXPECT_EQ(bytesOf(image), bytes) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(LumioImageDepth, SavedWidths, testing::Values(1, 3, 5, 1001));

} // namespace
