// SPDX-License-Identifier: MIT
#include "graphics/gl/Textures.h"

#include <gtest/gtest.h>

namespace grisal::graphics
{

TEST(TextureErrorTextTest, EveryKnownErrorHasAText)
{
    EXPECT_STREQ(textureErrorText(GL_INVALID_ENUM), "Failed to create texture: Invalid enum");
    EXPECT_STREQ(textureErrorText(GL_INVALID_VALUE), "Failed to create texture: Invalid value");
    EXPECT_STREQ(textureErrorText(GL_INVALID_OPERATION), "Failed to create texture: Invalid operation");
    EXPECT_STREQ(textureErrorText(GL_STACK_OVERFLOW), "Failed to create texture: Stack Overflow");
    EXPECT_STREQ(textureErrorText(GL_STACK_UNDERFLOW), "Failed to create texture: Stack Underflow");
    EXPECT_STREQ(textureErrorText(GL_OUT_OF_MEMORY), "Failed to create texture: Out of memory");
}

// The misspelt text stays the same, because users search their logs for it.
TEST(TextureErrorTextTest, TooLargeTableKeepsItsMisspelledText)
{
    EXPECT_STREQ(textureErrorText(GL_TABLE_TOO_LARGE), "Failed to create texture: Table to large");
}

TEST(TextureErrorTextTest, NoErrorAndUnknownErrorsHaveNoText)
{
    EXPECT_EQ(textureErrorText(GL_NO_ERROR), nullptr);
    EXPECT_EQ(textureErrorText(GL_INVALID_FRAMEBUFFER_OPERATION), nullptr);
}

TEST(TextureTest, HasNoNameInitially)
{
    EXPECT_EQ(Texture().name(), 0U);
}

} // namespace grisal::graphics
