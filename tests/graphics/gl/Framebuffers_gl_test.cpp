// SPDX-License-Identifier: MIT
#include "graphics/gl/Framebuffers.h"

#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/LogCapture.h"

#include <utility>
#include <vector>

namespace grisal::test
{

namespace
{

using graphics::createFramebuffer;
using graphics::deleteFramebuffer;
using graphics::FramebufferObject;
using graphics::RenderTarget;

class FramebuffersTest : public GlTest
{
};

class UnalignedReadBackTest : public GlTest, public testing::WithParamInterface<int>
{
};

GLint attachment(const FramebufferObject &target, GLenum point)
{
    GLint name = 0;
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glGetFramebufferAttachmentParameteriv(GL_FRAMEBUFFER, point, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME, &name);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    return name;
}

GLenum statusOf(const FramebufferObject &target)
{
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    const GLenum status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    return status;
}

GLint depthParameter(const FramebufferObject &target, GLenum parameter)
{
    GLint value = 0;
    glBindRenderbuffer(GL_RENDERBUFFER, target.renderbuffer);
    glGetRenderbufferParameteriv(GL_RENDERBUFFER, parameter, &value);
    glBindRenderbuffer(GL_RENDERBUFFER, 0);
    return value;
}

GLint colourParameter(const FramebufferObject &target, GLenum parameter)
{
    GLint value = 0;
    glBindTexture(GL_TEXTURE_2D, target.texture);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, parameter, &value);
    glBindTexture(GL_TEXTURE_2D, 0);
    return value;
}

void fill(const FramebufferObject &target, float red, float green, float blue)
{
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glClearColor(red, green, blue, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

GLenum fakedStatus = GL_FRAMEBUFFER_COMPLETE;

GLenum GLAPIENTRY checkWithFakedStatus(GLenum)
{
    return fakedStatus;
}

/// The warnings for a new target whose status the OpenGL driver reports as `status`; expects that it is returned.
QStringList warningsAbout(GLenum status)
{
    const LogCapture log;
    fakedStatus = status;
    const auto real = std::exchange(__glewCheckFramebufferStatus, checkWithFakedStatus);
    const RenderTarget target(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    __glewCheckFramebufferStatus = real;
    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
    EXPECT_TRUE(glIsTexture(target.record().texture));
    EXPECT_TRUE(glIsRenderbuffer(target.record().renderbuffer));
    EXPECT_TRUE(glIsFramebuffer(target.record().framebuffer));
    return log.warnings();
}

} // namespace

TEST_F(FramebuffersTest, RecordContainsTheAttachments)
{
    const RenderTarget target(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);

    EXPECT_EQ(attachment(target.record(), GL_COLOR_ATTACHMENT0), static_cast<GLint>(target.record().texture));
    EXPECT_EQ(attachment(target.record(), GL_DEPTH_ATTACHMENT), static_cast<GLint>(target.record().renderbuffer));
    EXPECT_EQ(statusOf(target.record()), static_cast<GLenum>(GL_FRAMEBUFFER_COMPLETE));
}

TEST_F(FramebuffersTest, ColourAndDepthHaveTheSizeOfTheTarget)
{
    const RenderTarget target(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);

    EXPECT_EQ(colourParameter(target.record(), GL_TEXTURE_WIDTH), 6);
    EXPECT_EQ(colourParameter(target.record(), GL_TEXTURE_HEIGHT), 4);
    EXPECT_EQ(depthParameter(target.record(), GL_RENDERBUFFER_WIDTH), 6);
    EXPECT_EQ(depthParameter(target.record(), GL_RENDERBUFFER_HEIGHT), 4);
}

TEST_F(FramebuffersTest, SecondFormatIsTheInternalFormat)
{
    const RenderTarget target(6, 4, GL_RED, GL_R32F, GL_FLOAT);

    EXPECT_EQ(colourParameter(target.record(), GL_TEXTURE_INTERNAL_FORMAT), GL_R32F);
}

TEST_F(FramebuffersTest, SixteenBitColourGetsASixteenBitDepth)
{
    const RenderTarget target(6, 4, GL_RGB, GL_RGB16, GL_UNSIGNED_SHORT);

    EXPECT_EQ(depthParameter(target.record(), GL_RENDERBUFFER_INTERNAL_FORMAT), GL_DEPTH_COMPONENT16);
    EXPECT_EQ(depthParameter(target.record(), GL_RENDERBUFFER_DEPTH_SIZE), 16);
}

TEST_F(FramebuffersTest, OtherColoursGetTheDefaultDepthOfTheDriver)
{
    const RenderTarget bytes(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const RenderTarget halfFloats(6, 4, GL_RGB, GL_RGB16F, GL_UNSIGNED_SHORT);
    const RenderTarget mask(6, 4, GL_RED, GL_R32F, GL_FLOAT);

    for (const RenderTarget *target : {&bytes, &halfFloats, &mask}) {
        EXPECT_EQ(depthParameter(target->record(), GL_RENDERBUFFER_INTERNAL_FORMAT), GL_DEPTH_COMPONENT);
        EXPECT_GE(depthParameter(target->record(), GL_RENDERBUFFER_DEPTH_SIZE), 16);
    }
}

TEST_F(FramebuffersTest, EveryFormatInUseIsCompleteWithoutWarning)
{
    struct Formats {
        GLenum format;
        GLenum internalFormat;
        GLenum type;
    };
    const LogCapture log;
    for (const Formats &f :
         {Formats{GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE}, Formats{GL_RGB, GL_RGB16, GL_UNSIGNED_SHORT},
          Formats{GL_RGBA, GL_RGBA8, GL_UNSIGNED_BYTE}, Formats{GL_RGBA, GL_RGBA16, GL_UNSIGNED_SHORT},
          Formats{GL_RGB, GL_RGB16F, GL_UNSIGNED_SHORT}, Formats{GL_RED, GL_R32F, GL_FLOAT}}) {
        const RenderTarget target(5, 3, f.format, f.internalFormat, f.type);

        EXPECT_EQ(statusOf(target.record()), static_cast<GLenum>(GL_FRAMEBUFFER_COMPLETE)) << f.internalFormat;
    }
    EXPECT_EQ(log.warnings(), QStringList());
}

TEST_F(FramebuffersTest, LogsThreeStatesAndReturnsTheTarget)
{
    EXPECT_EQ(warningsAbout(GL_FRAMEBUFFER_INCOMPLETE_ATTACHMENT),
              QStringList{"Failed to create Framebuffer: Broken attachment"});
    EXPECT_EQ(warningsAbout(GL_FRAMEBUFFER_INCOMPLETE_MISSING_ATTACHMENT),
              QStringList{"Failed to create Framebuffer: Incomplete attachment"});
    EXPECT_EQ(warningsAbout(GL_FRAMEBUFFER_UNSUPPORTED),
              QStringList{"Failed to create Framebuffer: GL_FRAMEBUFFER_ARB not supported"});
}

TEST_F(FramebuffersTest, LogsNoOtherStateAndReturnsTheTarget)
{
    EXPECT_EQ(warningsAbout(GL_FRAMEBUFFER_INCOMPLETE_DIMENSIONS_EXT), QStringList());
    EXPECT_EQ(warningsAbout(GL_FRAMEBUFFER_INCOMPLETE_MULTISAMPLE), QStringList());
    EXPECT_EQ(warningsAbout(0), QStringList());
}

TEST_F(FramebuffersTest, CreationLeavesFramebufferZeroBound)
{
    const RenderTarget first(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    glBindFramebuffer(GL_FRAMEBUFFER, first.record().framebuffer);

    const RenderTarget second(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);

    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
}

TEST_F(FramebuffersTest, IncompleteTargetIsLoggedAndReturned)
{
    const LogCapture log;

    const FramebufferObject target = createFramebuffer(0, 0, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);

    EXPECT_NE(target.texture, 0U);
    EXPECT_NE(target.renderbuffer, 0U);
    EXPECT_NE(target.framebuffer, 0U);
    EXPECT_EQ(log.warnings(), QStringList{"Failed to create Framebuffer: Broken attachment"});
    deleteFramebuffer(target);
    clearGlErrors();
}

TEST_F(FramebuffersTest, FailedTextureAndItsTargetAreLoggedInThisOrder)
{
    const LogCapture log;

    const FramebufferObject target = createFramebuffer(4, 4, GL_RGB, GL_RGB8, GL_NEAREST);

    EXPECT_NE(target.framebuffer, 0U);
    EXPECT_EQ(log.warnings(), (QStringList{"Failed to create texture: Invalid enum",
                                           "Failed to create Framebuffer: Broken attachment"}));
    deleteFramebuffer(target);
    clearGlErrors();
}

TEST_F(FramebuffersTest, DestructorDeletesAllThreeObjects)
{
    FramebufferObject record;
    {
        const RenderTarget target(6, 4, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
        record = target.record();
        EXPECT_TRUE(glIsTexture(record.texture));
        EXPECT_TRUE(glIsRenderbuffer(record.renderbuffer));
        EXPECT_TRUE(glIsFramebuffer(record.framebuffer));
    }
    EXPECT_FALSE(glIsTexture(record.texture));
    EXPECT_FALSE(glIsRenderbuffer(record.renderbuffer));
    EXPECT_FALSE(glIsFramebuffer(record.framebuffer));
}

TEST_P(UnalignedReadBackTest, WritesEveryPixelAndNothingBeyond)
{
    constexpr int height = 3;
    constexpr std::size_t guard = 64;
    const RenderTarget target(GetParam(), height, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    fill(target.record(), 1, 1, 1);
    const std::size_t size = static_cast<std::size_t>(GetParam()) * height * 3;
    std::vector<std::uint8_t> bytes(size + guard, 0xA5);
    glPixelStorei(GL_PACK_ALIGNMENT, 8);

    graphics::readPixels(target.record(), GetParam(), height, GL_RGB, GL_UNSIGNED_BYTE, bytes.data());

    const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(size);
    EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin(), end), std::vector<std::uint8_t>(size, 255));
    EXPECT_EQ(std::vector<std::uint8_t>(end, bytes.end()), std::vector<std::uint8_t>(guard, 0xA5));
}

TEST_P(UnalignedReadBackTest, WritesEverySampleAndNothingBeyond)
{
    constexpr int height = 3;
    constexpr std::size_t guard = 64;
    const RenderTarget target(GetParam(), height, GL_RGB, GL_RGB16F, GL_UNSIGNED_SHORT);
    fill(target.record(), 1, 1, 1);
    const std::size_t size = static_cast<std::size_t>(GetParam()) * height * 3;
    std::vector<std::uint16_t> samples(size + guard, 0xA5A5);
    glPixelStorei(GL_PACK_ALIGNMENT, 8);

    graphics::readPixels(target.record(), GetParam(), height, GL_RGB, GL_UNSIGNED_SHORT, samples.data());

    const auto end = samples.begin() + static_cast<std::ptrdiff_t>(size);
    EXPECT_EQ(std::vector<std::uint16_t>(samples.begin(), end), std::vector<std::uint16_t>(size, 65535));
    EXPECT_EQ(std::vector<std::uint16_t>(end, samples.end()), std::vector<std::uint16_t>(guard, 0xA5A5));
}

INSTANTIATE_TEST_SUITE_P(Widths, UnalignedReadBackTest, testing::Values(1, 3, 5, 513, 515));

TEST_F(FramebuffersTest, ReadingBackLeavesFramebufferZeroBound)
{
    const RenderTarget target(1, 1, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    fill(target.record(), 1, 0, 0);
    std::vector<std::uint8_t> bytes(3);

    graphics::readPixels(target.record(), 1, 1, GL_RGB, GL_UNSIGNED_BYTE, bytes.data());

    EXPECT_EQ(bytes, (std::vector<std::uint8_t>{255, 0, 0}));
    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
}

TEST_F(FramebuffersTest, IsCompleteLeavesFramebufferZeroBound)
{
    const RenderTarget target(1, 1, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    glBindFramebuffer(GL_FRAMEBUFFER, target.record().framebuffer);

    EXPECT_TRUE(target.isComplete());

    EXPECT_EQ(glInteger(GL_FRAMEBUFFER_BINDING), 0);
}

} // namespace grisal::test
