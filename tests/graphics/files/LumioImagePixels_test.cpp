// SPDX-License-Identifier: MIT
//
// Where a picture's pixels are kept: in the library's memory, packed, or in a buffer that is lent.
#include "graphics/files/LumioImage.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include <cstring>
#include <random>

using namespace grisal::test;
using grisal::graphics::LumioImage;

namespace
{

/// Values in which neighbours differ and that do not repeat with the rows.
template <typename Values>
Values mixedValues(int width, int height)
{
    Values values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    std::minstd_rand next;
    for (auto &value : values) {
        value = static_cast<typename Values::value_type>(next());
    }
    return values;
}

template <typename Value>
std::vector<Value> packedOf(const LumioImage &image)
{
    const auto *values = static_cast<const Value *>(image.packedPixels());
    const std::size_t count = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()) * 3;
    return values == nullptr ? std::vector<Value>() : std::vector<Value>(values, values + count);
}

Words opacitiesOf(LumioImage &image)
{
    const std::size_t count = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height());
    Words words(count * 4);
    Words opacities;
    image.getPixels(words.data(), true, true);
    for (std::size_t i = 3; i < words.size(); i += 4) {
        opacities.push_back(words[i]);
    }
    return opacities;
}

struct Size {
    int width;
    int height;
};

// The large ones are worked on by several cores, in several steps.
class PixelPlaces : public testing::TestWithParam<Size>
{
};

INSTANTIATE_TEST_SUITE_P(LumioImageTest, PixelPlaces,
                         testing::Values(Size{1, 1}, Size{2, 1}, Size{5, 3}, Size{1001, 997}),
                         [](const auto &test) { return std::to_string(test.param.width); });

TEST_P(PixelPlaces, PackedPixelsAreThePicturesOwn)
{
    const auto [width, height] = GetParam();
    const auto bytes = mixedValues<Bytes>(width, height);
    LumioImage byteImage = pictureOf(bytes, width, height);
    ASSERT_TRUE(byteImage.pack());
    EXPECT_EQ(packedOf<std::uint8_t>(byteImage), bytes);
    EXPECT_EQ(bytesOf(byteImage), bytes);

    const auto words = mixedValues<Words>(width, height);
    LumioImage wordImage = pictureOf(words, width, height);
    ASSERT_TRUE(wordImage.pack());
    EXPECT_EQ(packedOf<std::uint16_t>(wordImage), words);
    EXPECT_EQ(wordsOf(wordImage), words);
}

TEST_P(PixelPlaces, TheLentBufferBecomesThePicture)
{
    const auto [width, height] = GetParam();
    const auto bytes = mixedValues<Bytes>(width, height);
    LumioImage byteImage(width, height, false);
    void *room = byteImage.roomForPixels();
    ASSERT_NE(room, nullptr);
    std::memcpy(room, bytes.data(), bytes.size());
    ASSERT_TRUE(byteImage.setPixels(room, false, false));
    EXPECT_EQ(bytesOf(byteImage), bytes);
    EXPECT_EQ(opacitiesOf(byteImage), Words(bytes.size() / 3, 255));

    const auto words = mixedValues<Words>(width, height);
    LumioImage wordImage(width, height, true);
    room = wordImage.roomForPixels();
    ASSERT_NE(room, nullptr);
    std::memcpy(room, words.data(), words.size() * sizeof(words[0]));
    ASSERT_TRUE(wordImage.setPixels(room, false, true));
    EXPECT_EQ(wordsOf(wordImage), words);
    EXPECT_EQ(opacitiesOf(wordImage), Words(words.size() / 3, 65535));
}

TEST(LumioImageTest, PackedPixelsAreGivenInTheOtherDepthToo)
{
    LumioImage byteImage = pictureOf(Bytes{0, 1, 255}, 1, 1);
    ASSERT_TRUE(byteImage.pack());
    EXPECT_EQ(wordsOf(byteImage), (Words{0, 256, 65280}));

    LumioImage wordImage = pictureOf(Words{255, 256, 65535}, 1, 1);
    ASSERT_TRUE(wordImage.pack());
    EXPECT_EQ(bytesOf(wordImage), (Bytes{0, 1, 255}));
}

TEST(LumioImageTest, PackingTwiceChangesNothing)
{
    LumioImage image = pictureOf(Bytes{1, 2, 3}, 1, 1);
    ASSERT_TRUE(image.pack());
    ASSERT_TRUE(image.pack());
    EXPECT_EQ(packedOf<std::uint8_t>(image), (Bytes{1, 2, 3}));
}

TEST(LumioImageTest, APackedPictureIsSavedLikeAnyOther)
{
    const QTemporaryDir directory;
    const auto words = mixedValues<Words>(7, 5);
    LumioImage image = pictureOf(words, 7, 5);
    ASSERT_TRUE(image.pack());
    ASSERT_TRUE(image.save(directory.filePath("packed.tif"), 90)) << qPrintable(image.problem());
    EXPECT_EQ(samplesOf(directory.filePath("packed.tif")), words);
}

TEST(LumioImageTest, APackedPictureHasNoOpacityOfItsOwn)
{
    LumioImage image(1, 1, false);
    ASSERT_TRUE(image.setPixels(Bytes{1, 2, 3, 4}.data(), true, false));
    ASSERT_TRUE(image.pack());

    Bytes bytes(4);
    ASSERT_TRUE(image.getPixels(bytes.data(), true, false));
    EXPECT_EQ(bytes, (Bytes{1, 2, 3, 255}));
    EXPECT_EQ(image.packedPixels(), nullptr);
}

TEST(LumioImageTest, CopiesOfAPackedPictureAreChangedApart)
{
    LumioImage image = pictureOf(Bytes{1, 2, 3}, 1, 1);
    ASSERT_TRUE(image.pack());
    LumioImage copy = image;
    ASSERT_TRUE(copy.setPixels(Bytes{9, 9, 9}.data(), false, false));
    EXPECT_EQ(bytesOf(image), (Bytes{1, 2, 3}));
    EXPECT_EQ(bytesOf(copy), (Bytes{9, 9, 9}));
}

TEST(LumioImageTest, APackedPictureDescribesItself)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("a.png");
    Magick::Image picture = painted(5, 3, 8, [](int x, int y) {
        return Samples{0, std::uint16_t(x), std::uint16_t(y)};
    });
    picture.renderingIntent(Magick::PerceptualIntent);
    picture.write(path.toStdString());
    LumioImage image;
    ASSERT_TRUE(image.read(path));
    wordsOf(image);
    const std::string before = image.info();
    ASSERT_NE(before.find("PerceptualIntent"), std::string::npos);
    ASSERT_TRUE(image.pack());
    EXPECT_EQ(image.info(), before);
    EXPECT_NE(image.packedPixels(), nullptr);
}

TEST(LumioImageTest, ReadingReplacesPackedPixels)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("a.png");
    ASSERT_TRUE(pictureOf(Bytes{9, 8, 7}, 1, 1).save(path, 90));
    LumioImage image = pictureOf(Bytes{1, 2, 3}, 1, 1);
    ASSERT_TRUE(image.pack());
    ASSERT_TRUE(image.read(path));
    EXPECT_EQ(image.packedPixels(), nullptr);
    EXPECT_EQ(bytesOf(image), (Bytes{9, 8, 7}));
}

TEST(LumioImageTest, IsBlackUntilTheLentBufferIsTakenOver)
{
    for (const bool sixteenBit : {false, true}) {
        LumioImage image = pictureOf(Bytes(45, 9), 5, 3);
        void *room = image.roomForPixels();
        ASSERT_NE(room, nullptr);
        std::memset(room, 77, 45);
        EXPECT_EQ(sixteenBit ? wordsOf(image) : Words(45, 0), Words(45, 0));
        EXPECT_EQ(bytesOf(image), Bytes(45, 0));
    }
}

TEST(LumioImageTest, ThereIsNoBufferBeyondTheMemory)
{
    constexpr int longest = 1'000'000;
    LumioImage image(longest, longest, false);
    EXPECT_EQ(image.roomForPixels(), nullptr);
    EXPECT_FALSE(image.problem().isEmpty());
    EXPECT_EQ(LumioImage().roomForPixels(), nullptr);
    EXPECT_FALSE(LumioImage().pack());
}

} // namespace
