// SPDX-License-Identifier: MIT
#include "graphics/image/Image.h"

#include <gtest/gtest.h>

using namespace grisal::graphics;

namespace
{

TEST(ImageTest, IsBlackInitially)
{
    const Image8 image(3, 2);
    EXPECT_EQ(image.width, 3);
    EXPECT_EQ(image.height, 2);
    EXPECT_EQ(image.pixelCount(), 6U);
    EXPECT_EQ(image.samples, std::vector<std::uint8_t>(18, 0));
}

TEST(ImageTest, HasTheDepthOfItsSamples)
{
    EXPECT_FALSE(is16Bit(Image8(1, 1)));
    EXPECT_TRUE(is16Bit(Image16(1, 1)));
}

TEST(ImageTest, HighBytesAreTruncatedNotRounded)
{
    Image16 image(2, 1);
    image.samples = {0, 0x00ff, 0x0100, 0x80ff, 0xfeff, 0xffff};
    const Image8 bytes = highBytes(image);
    EXPECT_EQ(bytes.width, 2);
    EXPECT_EQ(bytes.height, 1);
    EXPECT_EQ(bytes.samples, (std::vector<std::uint8_t>{0, 0, 1, 0x80, 0xfe, 0xff}));
}

} // namespace
