// SPDX-License-Identifier: MIT
#include "graphics/files/PictureFormat.h"

#include <gtest/gtest.h>

namespace
{

using namespace grisal::graphics;

TEST(PictureFormat, IsToldByTheFirstBytes)
{
    EXPECT_EQ(formatOfContents("\xff\xd8\xff\xe0"), PictureFormat::Jpeg);
    EXPECT_EQ(formatOfContents("\x89PNG\r\n\x1a\n"), PictureFormat::Png);
    EXPECT_EQ(formatOfContents(QByteArrayView("II*\0\x08\0\0\0", 8)), PictureFormat::Tiff);
    EXPECT_EQ(formatOfContents(QByteArrayView("MM\0*\0\0\0\x08", 8)), PictureFormat::Tiff);
    EXPECT_EQ(formatOfContents(QByteArrayView("II+\0\x08\0\0\0", 8)), PictureFormat::Tiff);
    EXPECT_EQ(formatOfContents(QByteArrayView("MM\0+\0\x08\0\0", 8)), PictureFormat::Tiff);
}

TEST(PictureFormat, OfAnythingElseIsNone)
{
    for (const char *start : {"", "\xff\xd8", "\x89PNG", "%!PS-Adobe", "%PDF-1.4", "<svg xml", "GIF89a", "BM", "II"}) {
        EXPECT_FALSE(formatOfContents(start)) << start;
    }
}

TEST(PictureFormat, OfANameIsItsExtensionInAnyCase)
{
    EXPECT_EQ(formatOfName("a.jpg"), PictureFormat::Jpeg);
    EXPECT_EQ(formatOfName("/b.c/a.JPEG"), PictureFormat::Jpeg);
    EXPECT_EQ(formatOfName("a.b.Png"), PictureFormat::Png);
    EXPECT_EQ(formatOfName("a.tif"), PictureFormat::Tiff);
    EXPECT_EQ(formatOfName("a.TIFF"), PictureFormat::Tiff);
}

TEST(PictureFormat, OfOtherNamesIsNone)
{
    for (const char *name : {"", "a", "jpg", "a.jpg.", "a.xyz", "/b.jpg/a", "png:a", "a.jp", "a.gif"}) {
        EXPECT_FALSE(formatOfName(name)) << name;
    }
}

TEST(PictureFormat, IsSaidToTheLibraryInFrontOfTheName)
{
    EXPECT_EQ(libraryName(PictureFormat::Jpeg, "a"), "JPEG:a");
    EXPECT_EQ(libraryName(PictureFormat::Png, "a"), "PNG:a");
    EXPECT_EQ(libraryName(PictureFormat::Tiff, "a"), "TIFF:a");
}

} // namespace
