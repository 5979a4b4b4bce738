// SPDX-License-Identifier: MIT
#include "graphics/image/PreviewImage.h"

#include <gtest/gtest.h>

#include <numeric>

using namespace grisal::graphics;

namespace
{

using Bytes = std::vector<std::uint8_t>;
using Samples16 = std::vector<std::uint16_t>;

Image8 previewOf(Image8 image)
{
    return std::get<Image8>(makePreview(image));
}

Image8 previewOfGrey(int width, int height)
{
    return previewOf(Image8(width, height, rgbComponents, 200));
}

TEST(PreviewImageTest, RoundsSidesDownToAMultipleOfFour)
{
    EXPECT_EQ(roundedPreviewSide(4), 4);
    EXPECT_EQ(roundedPreviewSide(7), 4);
    EXPECT_EQ(roundedPreviewSide(1000), 1000);
    EXPECT_EQ(roundedPreviewSide(1001), 1000);
    EXPECT_EQ(roundedPreviewSide(1003), 1000);
}

TEST(PreviewImageTest, KeepsSidesOfOneToThreePixels)
{
    for (const int side : {1, 2, 3}) {
        EXPECT_EQ(roundedPreviewSide(side), side);
    }
}

TEST(PreviewImageTest, IsEmptyForAnEmptyImage)
{
    for (const Image &image : {Image(Image8()), Image(Image8(0, 4)), Image(Image8(4, 0)), Image(Image16())}) {
        const Image preview = makePreview(image);
        EXPECT_TRUE(isEmpty(preview));
        EXPECT_EQ(widthOf(preview), 0);
        EXPECT_EQ(heightOf(preview), 0);
    }
}

TEST(PreviewImageTest, KeepsTheTopLeftPixels)
{
    Image8 image(6, 5);
    std::iota(image.samples.begin(), image.samples.end(), std::uint8_t{0});
    const Image8 preview = previewOf(image);
    EXPECT_EQ(preview.width, 4);
    EXPECT_EQ(preview.height, 4);

    Bytes expected;
    for (int y = 0; y < 4; ++y) {
        for (int i = 0; i < 4 * 3; ++i) {
            expected.push_back(static_cast<std::uint8_t>(y * 6 * 3 + i));
        }
    }
    EXPECT_EQ(preview.samples, expected);
}

TEST(PreviewImageTest, DropsTheFourthComponent)
{
    Image8 image(3, 1, rgbaComponents);
    image.samples = {1, 2, 3, 99, 4, 5, 6, 99, 7, 8, 9, 99};
    const Image8 preview = previewOf(image);
    EXPECT_EQ(preview.components, rgbComponents);
    EXPECT_EQ(preview.samples, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(PreviewImageTest, Keeps16BitSamples)
{
    Image16 image(2, 1, rgbaComponents);
    image.samples = {1000, 2000, 3000, 65535, 4000, 5000, 6000, 65535};
    EXPECT_EQ(std::get<Image16>(makePreview(image)).samples, (Samples16{1000, 2000, 3000, 4000, 5000, 6000}));
}

TEST(PreviewImageTest, IsNotDownscaledIfItFits)
{
    const Image8 preview = previewOfGrey(4099, 12);
    EXPECT_EQ(preview.width, 4096);
    EXPECT_EQ(preview.height, 12);
}

TEST(PreviewImageTest, IsDownscaledTwiceAbove8192Pixels)
{
    const Image8 preview = previewOfGrey(9000, 6000);
    EXPECT_EQ(preview.width, 2250);
    EXPECT_EQ(preview.height, 1500);
    EXPECT_EQ(preview.samples, Bytes(std::size_t{2250} * 1500 * 3, 200));
}

TEST(PreviewImageTest, KeepsAtLeastOnePixelOfEachSide)
{
    const Image8 wide = previewOfGrey(20000, 1);
    EXPECT_EQ(wide.width, 2500);
    EXPECT_EQ(wide.height, 1);

    const Image8 high = previewOfGrey(2, 20000);
    EXPECT_EQ(high.width, 1);
    EXPECT_EQ(high.height, 2500);
}

} // namespace
