// SPDX-License-Identifier: MIT
#include "graphics/files/ImageMemory.h"

#include <gtest/gtest.h>

#include <limits>

using namespace grisal::graphics;

namespace
{

ImageHeader headerOf(std::uint32_t width, std::uint32_t height, bool isJpeg = false, std::uint32_t decoder = 0)
{
    ImageHeader header;
    header.width = width;
    header.height = height;
    header.isJpeg = isJpeg;
    header.decoderBytesPerPixel = decoder;
    return header;
}

TEST(ImageMemory, CountsTheCopyForTheOrientationOrTheDecoder)
{
    EXPECT_EQ(memoryToRead(headerOf(1000, 10)), 200'000U);
    EXPECT_EQ(memoryToRead(headerOf(1000, 10, true, 6)), 200'000U);
    EXPECT_EQ(memoryToRead(headerOf(1000, 10, false, 16)), 260'000U);
    EXPECT_EQ(memoryToWrite(headerOf(1000, 10)), 100'000U);
}

TEST(ImageMemory, DoesNotOverflow)
{
    constexpr auto most = std::numeric_limits<std::uint32_t>::max();
    EXPECT_GT(memoryToRead(headerOf(most, most)), std::uint64_t{1} << 36);
    EXPECT_GT(memoryToRead(headerOf(most, most, false, most / 4)), std::uint64_t{1} << 60);
    EXPECT_FALSE(isPlausible(headerOf(most, most), 1'000'000));
}

TEST(ImageMemory, AcceptsSmallImagesInFilesOfAnySize)
{
    EXPECT_TRUE(isPlausible(headerOf(7000, 7000), 1));
    EXPECT_FALSE(isPlausible(headerOf(8000, 7000), 1));
    EXPECT_FALSE(isPlausible(headerOf(7000, 7000, false, 16), 1));
}

// Some of them are as small as an even picture allows.
TEST(ImageMemory, AcceptsGenuineImages)
{
    EXPECT_TRUE(isPlausible(headerOf(11'648, 8736, true), 20'000'000));     // a camera of 102 megapixels
    EXPECT_TRUE(isPlausible(headerOf(10'000, 10'000, true), 390'000));      // grey, optimised coding
    EXPECT_TRUE(isPlausible(headerOf(10'000, 10'000, true, 6), 1'200'000)); // progressive
    EXPECT_TRUE(isPlausible(headerOf(15'000, 10'000, true), 1'800'000));    // grey, without optimised coding
    EXPECT_TRUE(isPlausible(headerOf(10'000, 10'000), 300'000));            // an even ramp as PNG
    EXPECT_TRUE(isPlausible(headerOf(16'320, 12'240), 20'000'000));         // a telephone of 200 megapixels
}

TEST(ImageMemory, RejectsImagesThatWouldExhaustTheMemory)
{
    EXPECT_FALSE(isPlausible(headerOf(9487, 9487), 11'000));                 // black and white, deflated
    EXPECT_FALSE(isPlausible(headerOf(20'000, 20'000), 50'000));             // the same
    EXPECT_FALSE(isPlausible(headerOf(16'000, 16'000), 1'300'000));          // with other data behind it
    EXPECT_FALSE(isPlausible(headerOf(22'000, 22'000), 2'450'000));          // the same
    EXPECT_FALSE(isPlausible(headerOf(31'000, 32'000), 6'000'000));          // the same
    EXPECT_FALSE(isPlausible(headerOf(12'000, 11'000, true, 8), 2'450'000)); // a progressive JPEG
    EXPECT_FALSE(isPlausible(headerOf(20'000, 14'000, true), 1'094'000));    // a JPEG of a single grey
    EXPECT_FALSE(isPlausible(headerOf(31'000, 32'000, true), 6'000'000));    // a JPEG that ends early
}

TEST(ImageMemory, LimitsCopiesToWhatTheImageMayNeed)
{
    EXPECT_TRUE(isPlausibleCopy(headerOf(10, 10), 500'000'000));
    EXPECT_FALSE(isPlausibleCopy(headerOf(10, 10), 1'100'000'000));
    EXPECT_TRUE(isPlausibleCopy(headerOf(6000, 4000), 1'500'000'000));
    EXPECT_FALSE(isPlausibleCopy(headerOf(6000, 4000), 1'600'000'000));
    EXPECT_TRUE(isPlausibleCopy(headerOf(20'000, 10'000), 1'200'000'000));
}

} // namespace
