// SPDX-License-Identifier: MIT
#include "graphics/gl/Textures.h"

#include <gtest/gtest.h>

namespace grisal::graphics
{

TEST(TextureErrorTextTest, EveryKnownErrorHasItsText)
{
    EXPECT_STREQ(textureErrorText(GL_INVALID_ENUM), "Failed to create texture: Invalid enum");
    EXPECT_STREQ(textureErrorText(GL_INVALID_VALUE), "Failed to create texture: Invalid value");
    EXPECT_STREQ(textureErrorText(GL_INVALID_OPERATION), "Failed to create texture: Invalid operation");
    EXPECT_STREQ(textureErrorText(GL_STACK_OVERFLOW), "Failed to create texture: Stack Overflow");
    EXPECT_STREQ(textureErrorText(GL_STACK_UNDERFLOW), "Failed to create texture: Stack Underflow");
    EXPECT_STREQ(textureErrorText(GL_OUT_OF_MEMORY), "Failed to create texture: Out of memory");
}

// People search their logs for this line as it has always been spelt.
TEST(TextureErrorTextTest, ATableTooLargeKeepsItsSpelling)
{
    EXPECT_STREQ(textureErrorText(GL_TABLE_TOO_LARGE), "Failed to create texture: Table to large");
}

TEST(TextureErrorTextTest, NothingIsSaidWithoutAnErrorOrAboutAnUnknownOne)
{
    EXPECT_EQ(textureErrorText(GL_NO_ERROR), nullptr);
    EXPECT_EQ(textureErrorText(GL_INVALID_FRAMEBUFFER_OPERATION), nullptr);
}

TEST(TextureTest, HoldsNoNameAtFirst)
{
    EXPECT_EQ(Texture().name(), 0U);
}

} // namespace grisal::graphics
