// SPDX-License-Identifier: MIT
#include "graphics/image/PreviewPixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

using namespace grisal::graphics;

namespace
{

using Bytes = std::vector<std::uint8_t>;
using Samples16 = std::vector<std::uint16_t>;

std::size_t componentsOf(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3;
}

PreviewPixels blank(int width, int height)
{
    const Bytes bytes(componentsOf(width, height), 200);
    return makePreviewPixels(bytes.data(), width, height, false, false);
}

PreviewPixels half(int width, int height, const Bytes &bytes)
{
    return halved({width, height, bytes, {}});
}

TEST(PreviewPixelsTest, RoundsSidesDownToAMultipleOfFour)
{
    EXPECT_EQ(roundedPreviewSide(4), 4);
    EXPECT_EQ(roundedPreviewSide(7), 4);
    EXPECT_EQ(roundedPreviewSide(1000), 1000);
    EXPECT_EQ(roundedPreviewSide(1001), 1000);
    EXPECT_EQ(roundedPreviewSide(1003), 1000);
}

TEST(PreviewPixelsTest, LeavesSidesOfOneToThreePixels)
{
    for (const int side : {1, 2, 3}) {
        EXPECT_EQ(roundedPreviewSide(side), side);
    }
}

TEST(PreviewPixelsTest, IsEmptyForNullOrEmptyImage)
{
    const std::uint8_t byte = 0;
    for (const PreviewPixels &preview :
         {makePreviewPixels(nullptr, 4, 4, false, false), makePreviewPixels(&byte, 0, 4, false, false),
          makePreviewPixels(&byte, 4, 0, false, false)}) {
        EXPECT_EQ(preview.width, 0);
        EXPECT_EQ(preview.height, 0);
        EXPECT_EQ(preview.data(), nullptr);
    }
}

TEST(PreviewPixelsTest, KeepsTheTopLeftPixels)
{
    Bytes bytes(componentsOf(6, 5));
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
    const PreviewPixels preview = makePreviewPixels(bytes.data(), 6, 5, false, false);
    EXPECT_EQ(preview.width, 4);
    EXPECT_EQ(preview.height, 4);
    EXPECT_EQ(preview.data(), preview.bytes.data());
    EXPECT_TRUE(preview.words.empty());

    Bytes expected;
    for (int y = 0; y < 4; ++y) {
        for (int i = 0; i < 4 * 3; ++i) {
            expected.push_back(static_cast<std::uint8_t>(y * 6 * 3 + i));
        }
    }
    EXPECT_EQ(preview.bytes, expected);
}

TEST(PreviewPixelsTest, DropsTheFourthComponent)
{
    const Bytes bytes{1, 2, 3, 99, 4, 5, 6, 99, 7, 8, 9, 99};
    EXPECT_EQ(makePreviewPixels(bytes.data(), 3, 1, false, true).bytes, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(PreviewPixelsTest, KeepsSixteenBitSamples)
{
    const Samples16 words{1000, 2000, 3000, 65535, 4000, 5000, 6000, 65535};
    const PreviewPixels preview = makePreviewPixels(words.data(), 2, 1, true, true);
    EXPECT_EQ(preview.words, (Samples16{1000, 2000, 3000, 4000, 5000, 6000}));
    EXPECT_TRUE(preview.bytes.empty());
    EXPECT_EQ(preview.data(), preview.words.data());
}

TEST(PreviewPixelsTest, DoesNotDownscaleImagesWithinTheLimit)
{
    const PreviewPixels preview = blank(4099, 12);
    EXPECT_EQ(preview.width, 4096);
    EXPECT_EQ(preview.height, 12);
}

TEST(PreviewPixelsTest, DownscalesALargeImageTwice)
{
    const PreviewPixels preview = blank(9000, 6000);
    EXPECT_EQ(preview.width, 2250);
    EXPECT_EQ(preview.height, 1500);
    EXPECT_EQ(preview.bytes, Bytes(componentsOf(2250, 1500), 200));
}

TEST(PreviewPixelsTest, RoundsAfterEachDownscaling)
{
    constexpr int width = 9004;
    constexpr int height = 28; // 14, then 7, of which the widths are 4502 and 2251
    Bytes bytes(componentsOf(width, height));
    std::generate(bytes.begin(), bytes.end(),
                  [i = 0U]() mutable { return static_cast<std::uint8_t>(i++ * 40503 >> 7); });
    const PreviewPixels twice = halved(halved({width, height, bytes, {}}));
    const PreviewPixels preview = makePreviewPixels(bytes.data(), width, height, false, false);
    EXPECT_EQ(preview.width, 2251);
    EXPECT_EQ(preview.height, 7);
    EXPECT_EQ(preview.bytes, twice.bytes);

    const auto mean = [](int a, int b, int c, int d) { return (a + b + c + d + 2) / 4; };
    const auto once = [&](std::size_t x, std::size_t y) {
        const std::uint8_t *upper = bytes.data() + (y * width + x) * 3;
        const std::uint8_t *lower = upper + std::size_t{width} * 3;
        return mean(upper[0], upper[3], lower[0], lower[3]);
    };
    EXPECT_EQ(preview.bytes[0], mean(once(0, 0), once(2, 0), once(0, 2), once(2, 2)));
}

TEST(PreviewPixelsTest, NeverDownscalesASideToZero)
{
    const PreviewPixels wide = blank(20000, 1);
    EXPECT_EQ(wide.width, 2500);
    EXPECT_EQ(wide.height, 1);

    const PreviewPixels high = blank(2, 20000);
    EXPECT_EQ(high.width, 1);
    EXPECT_EQ(high.height, 2500);
}

TEST(PreviewPixelsTest, DownscalesToTheRoundedMeanOfFourPixels)
{
    // One pixel: red sums to 10, green to 9, blue to 1020.
    const Bytes bytes{1, 0, 255, 2, 0, 255, 3, 0, 255, 4, 9, 255};
    EXPECT_EQ(half(2, 2, bytes).bytes, (Bytes{3, 2, 255}));
}

TEST(PreviewPixelsTest, DownscalesSixteenBitSamplesWithoutOverflow)
{
    const Samples16 words(componentsOf(2, 2), 65535);
    EXPECT_EQ(halved({2, 2, {}, words}).words, (Samples16{65535, 65535, 65535}));
}

TEST(PreviewPixelsTest, AveragesOnlySamplesOfTheSameChannel)
{
    Bytes bytes;
    for (int i = 0; i < 4 * 2; ++i) {
        bytes.insert(bytes.end(), {static_cast<std::uint8_t>(i % 4 / 2 * 10), 100, 200});
    }
    const PreviewPixels preview = half(4, 2, bytes);
    EXPECT_EQ(preview.width, 2);
    EXPECT_EQ(preview.height, 1);
    EXPECT_EQ(preview.bytes, (Bytes{0, 100, 200, 10, 100, 200}));
}

TEST(PreviewPixelsTest, DropsALastOddRowAndColumn)
{
    Bytes bytes(componentsOf(3, 3), 50);
    std::fill(bytes.begin() + 6, bytes.begin() + 9, std::uint8_t{250}); // right of the first row
    std::fill(bytes.begin() + 18, bytes.end(), std::uint8_t{250});      // the last row
    const PreviewPixels preview = half(3, 3, bytes);
    EXPECT_EQ(preview.width, 1);
    EXPECT_EQ(preview.height, 1);
    EXPECT_EQ(preview.bytes, (Bytes{50, 50, 50}));
}

TEST(PreviewPixelsTest, DownscalesASingleRowOrColumnByPairs)
{
    const Bytes pair{10, 20, 30, 20, 21, 50};
    EXPECT_EQ(half(2, 1, pair).bytes, (Bytes{15, 21, 40}));
    EXPECT_EQ(half(1, 2, pair).bytes, (Bytes{15, 21, 40}));
    EXPECT_EQ(half(1, 1, {1, 2, 3}).bytes, (Bytes{1, 2, 3}));
}

} // namespace
