// SPDX-License-Identifier: MIT
#include "graphics/render/TilePixels.h"

#include "tests/support/PictureCompare.h"

#include <gtest/gtest.h>

namespace grisal::test
{

namespace
{

using graphics::copyTile;
using graphics::pasteTile;
using graphics::TileArea;

using Bytes = std::vector<std::uint8_t>;

Bytes cut(const BytePixels &picture, const TileArea &area)
{
    Bytes tile;
    copyTile(picture.values.data(), static_cast<std::size_t>(picture.width), static_cast<std::size_t>(picture.height),
             static_cast<std::size_t>(picture.components), area, tile);
    return tile;
}

void place(const Bytes &tile, const TileArea &area, BytePixels &picture)
{
    pasteTile(tile, area, picture.values.data(), static_cast<std::size_t>(picture.width),
              static_cast<std::size_t>(picture.height), static_cast<std::size_t>(picture.components));
}

/// Two rows of three pixels: 1 2 3, 4 5 6, 7 8 9 and 11 12 13, 14 15 16, 17 18 19.
const BytePixels sixPixels(3, 2, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 19});

} // namespace

TEST(CutTileTest, CopiesTheAreaRowByRow)
{
    EXPECT_EQ(cut(sixPixels, {1, 0, 2, 2}), (Bytes{4, 5, 6, 7, 8, 9, 14, 15, 16, 17, 18, 19}));
    EXPECT_EQ(cut(sixPixels, {0, 1, 1, 1}), (Bytes{11, 12, 13}));
}

TEST(CutTileTest, FillsWithBlackBeyondTheImage)
{
    EXPECT_EQ(cut(sixPixels, {2, 1, 2, 2}), (Bytes{17, 18, 19, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(CutTileTest, AreaOutsideTheImageIsBlack)
{
    EXPECT_EQ(cut(sixPixels, {3, 0, 1, 1}), (Bytes{0, 0, 0}));
    EXPECT_EQ(cut(sixPixels, {0, 2, 1, 1}), (Bytes{0, 0, 0}));
}

TEST(CutTileTest, OmitsAFourthComponent)
{
    const BytePixels picture(2, 1, 4, {1, 2, 3, 99, 4, 5, 6, 98});

    EXPECT_EQ(cut(picture, {0, 0, 2, 1}), (Bytes{1, 2, 3, 4, 5, 6}));
}

TEST(CutTileTest, ReplacesTheFormerContents)
{
    Bytes tile(100, 77);

    copyTile(sixPixels.values.data(), 3, 2, 3, {2, 0, 2, 1}, tile);

    EXPECT_EQ(tile, (Bytes{7, 8, 9, 0, 0, 0}));
}

TEST(CutTileTest, CopiesSixteenBitSamples)
{
    const std::vector<std::uint16_t> picture{1000, 2000, 3000, 65535, 0, 256};
    std::vector<std::uint16_t> tile;

    copyTile(picture.data(), 2, 1, 3, {1, 0, 1, 1}, tile);

    EXPECT_EQ(tile, (std::vector<std::uint16_t>{65535, 0, 256}));
}

TEST(PlaceTileTest, WritesTheAreaRowByRow)
{
    BytePixels picture(3, 2);

    place({4, 5, 6, 7, 8, 9, 14, 15, 16, 17, 18, 19}, {1, 0, 2, 2}, picture);

    EXPECT_EQ(picture.values, (Bytes{0, 0, 0, 4, 5, 6, 7, 8, 9, 0, 0, 0, 14, 15, 16, 17, 18, 19}));
}

TEST(PlaceTileTest, DropsPixelsBeyondTheImage)
{
    BytePixels picture(3, 2);

    place({17, 18, 19, 50, 50, 50, 50, 50, 50, 50, 50, 50}, {2, 1, 2, 2}, picture);

    EXPECT_EQ(picture.values, (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 17, 18, 19}));
}

TEST(PlaceTileTest, KeepsAFourthComponent)
{
    BytePixels picture(2, 1, 4, {0, 0, 0, 99, 0, 0, 0, 98});

    place({1, 2, 3, 4, 5, 6}, {0, 0, 2, 1}, picture);

    EXPECT_EQ(picture.values, (Bytes{1, 2, 3, 99, 4, 5, 6, 98}));
}

TEST(PlaceTileTest, SixteenTilesCutAndPlacedRestoreTheImage)
{
    const BytePixels picture = rampPicture<std::uint8_t>(17, 13, 4);
    BytePixels result(17, 13, 4);
    for (std::size_t i = 3; i < result.values.size(); i += 4) {
        result.values[i] = picture.values[i];
    }
    for (std::size_t h = 0; h < 4; ++h) {
        for (std::size_t v = 0; v < 4; ++v) {
            const TileArea area{h * 5, v * 4, 5, 4};
            place(cut(picture, area), area, result);
        }
    }

    EXPECT_TRUE(picturesNear("tiles-again", result, picture));
}

} // namespace grisal::test
