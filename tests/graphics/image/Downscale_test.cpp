// SPDX-License-Identifier: MIT
#include "graphics/image/Downscale.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace grisal::graphics;

namespace
{

using Bytes = std::vector<std::uint8_t>;
using Samples16 = std::vector<std::uint16_t>;

template <typename Sample>
Raster<Sample> downscaled(const std::vector<Sample> &samples, int width, int height, int times)
{
    return downscale(PixelRows<Sample>{samples.data(), static_cast<std::size_t>(width) * 3, 3}, width, height, times);
}

Bytes halfOf(int width, int height, const Bytes &bytes)
{
    return downscaled(bytes, width, height, 1).samples;
}

TEST(DownscaleTest, CopiesTheTopLeftPixelsWhenNotDownscaled)
{
    const Bytes bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};
    const Image8 image = downscale(PixelRows<std::uint8_t>{bytes.data(), 9, 3}, 2, 1, 0);
    EXPECT_EQ(image.width, 2);
    EXPECT_EQ(image.height, 1);
    EXPECT_EQ(image.samples, (Bytes{1, 2, 3, 4, 5, 6}));
}

TEST(DownscaleTest, AveragesFourPixelsAndRounds)
{
    // One pixel: red sums to 10, green to 9, blue to 1020.
    const Bytes bytes{1, 0, 255, 2, 0, 255, 3, 0, 255, 4, 9, 255};
    EXPECT_EQ(halfOf(2, 2, bytes), (Bytes{3, 2, 255}));
}

TEST(DownscaleTest, Averages16BitSamplesWithoutOverflow)
{
    EXPECT_EQ(downscaled(Samples16(12, 65535), 2, 2, 1).samples, (Samples16{65535, 65535, 65535}));
}

TEST(DownscaleTest, AveragesNeighboursOfTheSameChannel)
{
    Bytes bytes;
    for (int i = 0; i < 4 * 2; ++i) {
        bytes.insert(bytes.end(), {static_cast<std::uint8_t>(i % 4 / 2 * 10), 100, 200});
    }
    EXPECT_EQ(halfOf(4, 2, bytes), (Bytes{0, 100, 200, 10, 100, 200}));
}

TEST(DownscaleTest, IgnoresAlpha)
{
    const Bytes bytes{1, 2, 3, 255, 3, 4, 5, 0, 1, 2, 3, 9, 3, 4, 5, 77};
    const PixelRows<std::uint8_t> rows{bytes.data(), 8, 4};
    EXPECT_EQ(downscale(rows, 2, 2, 1).samples, (Bytes{2, 3, 4}));
    EXPECT_EQ(downscale(rows, 2, 1, 0).samples, (Bytes{1, 2, 3, 3, 4, 5}));
}

TEST(DownscaleTest, DropsTheLastRowAndColumnOfOddSides)
{
    Bytes bytes(27, 50);
    std::fill(bytes.begin() + 6, bytes.begin() + 9, std::uint8_t{250}); // right of the first row
    std::fill(bytes.begin() + 18, bytes.end(), std::uint8_t{250});      // the last row
    EXPECT_EQ(halfOf(3, 3, bytes), (Bytes{50, 50, 50}));
}

TEST(DownscaleTest, AveragesASingleRowOrColumnInPairs)
{
    const Bytes pair{10, 20, 30, 20, 21, 50};
    EXPECT_EQ(halfOf(2, 1, pair), (Bytes{15, 21, 40}));
    EXPECT_EQ(halfOf(1, 2, pair), (Bytes{15, 21, 40}));
    EXPECT_EQ(halfOf(1, 1, {1, 2, 3}), (Bytes{1, 2, 3}));
}

TEST(DownscaleTest, RoundsAfterEachDownscaling)
{
    constexpr int width = 20;
    constexpr int height = 14; // 7, then 3
    Bytes bytes(std::size_t{width} * height * 3);
    std::generate(bytes.begin(), bytes.end(),
                  [i = 0U]() mutable { return static_cast<std::uint8_t>(i++ * 40503 >> 7); });
    const Image8 once = downscaled(bytes, width, height, 1);
    const Image8 twice = downscaled(bytes, width, height, 2);
    EXPECT_EQ(twice.width, 5);
    EXPECT_EQ(twice.height, 3);
    EXPECT_EQ(twice.samples, downscaled(once.samples, once.width, once.height, 1).samples);
}

} // namespace
