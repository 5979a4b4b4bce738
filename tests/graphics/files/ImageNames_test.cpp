// SPDX-License-Identifier: MIT
#include "graphics/files/ImageNames.h"

#include <gtest/gtest.h>

#include <climits>

using namespace grisal::graphics;

namespace
{

TEST(ImageNamesTest, NamesTwoColorSpaces)
{
    EXPECT_STREQ(colorSpaceName(1), "RGBColorspace");
    EXPECT_STREQ(colorSpaceName(2), "GRAYColorspace");
}

TEST(ImageNamesTest, NamesFourIntents)
{
    EXPECT_STREQ(renderingIntentName(1), "SaturationIntent");
    EXPECT_STREQ(renderingIntentName(2), "PerceptualIntent");
    EXPECT_STREQ(renderingIntentName(3), "AbsoluteIntent");
    EXPECT_STREQ(renderingIntentName(4), "RelativeIntent");
}

TEST(ImageNamesTest, NamesTenTypes)
{
    EXPECT_STREQ(imageTypeName(1), "BilevelType");
    EXPECT_STREQ(imageTypeName(2), "GrayscaleType");
    EXPECT_STREQ(imageTypeName(3), "GrayscaleMatteType");
    EXPECT_STREQ(imageTypeName(4), "PaletteType");
    EXPECT_STREQ(imageTypeName(5), "PaletteMatteType");
    EXPECT_STREQ(imageTypeName(6), "TrueColorType");
    EXPECT_STREQ(imageTypeName(7), "TrueColorMatteType");
    EXPECT_STREQ(imageTypeName(8), "ColorSeparationType");
    EXPECT_STREQ(imageTypeName(9), "ColorSeparationMatteType");
    EXPECT_STREQ(imageTypeName(10), "OptimizeType");
}

// GraphicsMagick has more colour spaces than the log: CMYK (10) and sRGB (11) are undefined there.
TEST(ImageNamesTest, CallsEveryOtherColorSpaceUndefined)
{
    for (const int value : {INT_MIN, -1, 0, 3, 10, 11, INT_MAX}) {
        EXPECT_STREQ(colorSpaceName(value), "UndefinedColorspace") << value;
    }
}

TEST(ImageNamesTest, CallsEveryOtherIntentUndefined)
{
    for (const int value : {INT_MIN, -1, 0, 5, INT_MAX}) {
        EXPECT_STREQ(renderingIntentName(value), "UndefinedIntent") << value;
    }
}

TEST(ImageNamesTest, CallsEveryOtherTypeUndefined)
{
    for (const int value : {INT_MIN, -1, 0, 11, INT_MAX}) {
        EXPECT_STREQ(imageTypeName(value), "UndefinedType") << value;
    }
}

} // namespace
