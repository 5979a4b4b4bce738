// SPDX-License-Identifier: MIT
#include "graphics/files/ImageFormat.h"

#include <gtest/gtest.h>

namespace
{

using namespace grisal::graphics;

TEST(ImageFormat, IsDetectedByTheFirstBytes)
{
    EXPECT_EQ(formatOfContents("\xff\xd8\xff\xe0"), ImageFormat::Jpeg);
    EXPECT_EQ(formatOfContents("\x89PNG\r\n\x1a\n"), ImageFormat::Png);
    EXPECT_EQ(formatOfContents(QByteArrayView("II*\0\x08\0\0\0", 8)), ImageFormat::Tiff);
    EXPECT_EQ(formatOfContents(QByteArrayView("MM\0*\0\0\0\x08", 8)), ImageFormat::Tiff);
    EXPECT_EQ(formatOfContents(QByteArrayView("II+\0\x08\0\0\0", 8)), ImageFormat::Tiff);
    EXPECT_EQ(formatOfContents(QByteArrayView("MM\0+\0\x08\0\0", 8)), ImageFormat::Tiff);
}

TEST(ImageFormat, IsAbsentForOtherContents)
{
    for (const char *start : {"", "\xff\xd8", "\x89PNG", "%!PS-Adobe", "%PDF-1.4", "<svg xml", "GIF89a", "BM", "II"}) {
        EXPECT_FALSE(formatOfContents(start)) << start;
    }
}

TEST(ImageFormat, FollowsFromTheExtensionInAnyCase)
{
    EXPECT_EQ(formatOfName("a.jpg"), ImageFormat::Jpeg);
    EXPECT_EQ(formatOfName("/b.c/a.JPEG"), ImageFormat::Jpeg);
    EXPECT_EQ(formatOfName("a.b.Png"), ImageFormat::Png);
    EXPECT_EQ(formatOfName("a.tif"), ImageFormat::Tiff);
    EXPECT_EQ(formatOfName("a.TIFF"), ImageFormat::Tiff);
}

TEST(ImageFormat, IsAbsentForOtherNames)
{
    for (const char *name : {"", "a", "jpg", "a.jpg.", "a.xyz", "/b.jpg/a", "png:a", "a.jp", "a.gif"}) {
        EXPECT_FALSE(formatOfName(name)) << name;
    }
}

TEST(ImageFormat, IsThePrefixOfTheNameForGraphicsMagick)
{
    EXPECT_EQ(magickName(ImageFormat::Jpeg, "a"), "JPEG:a");
    EXPECT_EQ(magickName(ImageFormat::Png, "a"), "PNG:a");
    EXPECT_EQ(magickName(ImageFormat::Tiff, "a"), "TIFF:a");
}

} // namespace
