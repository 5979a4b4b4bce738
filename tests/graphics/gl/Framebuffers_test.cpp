// SPDX-License-Identifier: MIT
#include "graphics/gl/Framebuffers.h"

#include <gtest/gtest.h>

namespace grisal::graphics
{

TEST(FramebufferStatusTextTest, ThreeStatesHaveAText)
{
    EXPECT_STREQ(framebufferStatusText(GL_FRAMEBUFFER_INCOMPLETE_ATTACHMENT),
                 "Failed to create Framebuffer: Broken attachment");
    EXPECT_STREQ(framebufferStatusText(GL_FRAMEBUFFER_INCOMPLETE_MISSING_ATTACHMENT),
                 "Failed to create Framebuffer: Incomplete attachment");
    EXPECT_STREQ(framebufferStatusText(GL_FRAMEBUFFER_UNSUPPORTED),
                 "Failed to create Framebuffer: GL_FRAMEBUFFER_ARB not supported");
}

TEST(FramebufferStatusTextTest, CompleteFramebufferHasNoText)
{
    EXPECT_EQ(framebufferStatusText(GL_FRAMEBUFFER_COMPLETE), nullptr);
}

// Only the three states above are logged: drivers report others for temporary reasons.
TEST(FramebufferStatusTextTest, OtherStatesHaveNoText)
{
    EXPECT_EQ(framebufferStatusText(GL_FRAMEBUFFER_INCOMPLETE_DIMENSIONS_EXT), nullptr);
    EXPECT_EQ(framebufferStatusText(GL_FRAMEBUFFER_INCOMPLETE_DRAW_BUFFER), nullptr);
    EXPECT_EQ(framebufferStatusText(GL_FRAMEBUFFER_INCOMPLETE_MULTISAMPLE), nullptr);
    EXPECT_EQ(framebufferStatusText(0), nullptr);
}

TEST(DepthFormatTest, IsSixteenBitForSixteenBitColour)
{
    EXPECT_EQ(depthFormatFor(GL_RGB16), static_cast<GLenum>(GL_DEPTH_COMPONENT16));
}

TEST(DepthFormatTest, IsChosenByTheDriverForOtherColours)
{
    for (const GLenum colour : {GL_RGB8, GL_RGBA8, GL_RGBA16, GL_RGB16F, GL_R32F}) {
        EXPECT_EQ(depthFormatFor(colour), static_cast<GLenum>(GL_DEPTH_COMPONENT)) << colour;
    }
}

// Code that initialises or reads records depends on this order.
TEST(FramebufferObjectTest, ContainsThreeNamesInFixedOrder)
{
    const FramebufferObject record{1, 2, 3};

    EXPECT_EQ(record.texture, 1U);
    EXPECT_EQ(record.renderbuffer, 2U);
    EXPECT_EQ(record.framebuffer, 3U);
    EXPECT_EQ(sizeof(record), 3 * sizeof(std::uint32_t));
}

} // namespace grisal::graphics
