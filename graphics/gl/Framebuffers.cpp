// SPDX-License-Identifier: MIT
#include "graphics/gl/Framebuffers.h"

#include "graphics/gl/GlErrors.h"
#include "graphics/gl/Textures.h"

#include <QtGlobal>

namespace grisal::graphics
{

namespace
{

void switchOffPerFragmentTests()
{
    glDisable(GL_BLEND);
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_STENCIL_TEST);
}

void setPassMatrices(std::int32_t width, std::int32_t height)
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, width, 0, height, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

bool isOfSize(GLuint texture, std::int32_t width, std::int32_t height)
{
    GLint bound = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    GLint textureWidth = 0;
    GLint textureHeight = 0;
    glBindTexture(GL_TEXTURE_2D, texture);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &textureWidth);
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &textureHeight);
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(bound));
    return textureWidth == width && textureHeight == height;
}

FramebufferObject startFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                   GLenum type)
{
    FramebufferObject target;
    target.texture = createTexture(width, height, internalFormat, format, type, nullptr);
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture, 0);
    return target;
}

void finishFramebuffer()
{
    if (const char *text = framebufferStatusText(glCheckFramebufferStatus(GL_FRAMEBUFFER))) {
        qWarning("%s", text);
        recordIncompleteFramebuffer();
    }
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

} // namespace

FramebufferObject createFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                    GLenum type)
{
    FramebufferObject target = startFramebuffer(width, height, format, internalFormat, type);
    glGenRenderbuffers(1, &target.renderbuffer);
    glBindRenderbuffer(GL_RENDERBUFFER, target.renderbuffer);
    glRenderbufferStorage(GL_RENDERBUFFER, depthFormatFor(internalFormat), width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, target.renderbuffer);
    finishFramebuffer();
    return target;
}

FramebufferObject createColourFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                          GLenum type)
{
    const FramebufferObject target = startFramebuffer(width, height, format, internalFormat, type);
    finishFramebuffer();
    return target;
}

void deleteFramebuffer(const FramebufferObject &target)
{
    glDeleteTextures(1, &target.texture);
    glDeleteRenderbuffers(1, &target.renderbuffer);
    glDeleteFramebuffers(1, &target.framebuffer);
}

const char *framebufferStatusText(GLenum status)
{
    switch (status) {
    case GL_FRAMEBUFFER_INCOMPLETE_ATTACHMENT:
        return "Failed to create Framebuffer: Broken attachment";
    case GL_FRAMEBUFFER_INCOMPLETE_MISSING_ATTACHMENT:
        return "Failed to create Framebuffer: Incomplete attachment";
    case GL_FRAMEBUFFER_UNSUPPORTED:
        return "Failed to create Framebuffer: GL_FRAMEBUFFER_ARB not supported";
    default:
        return nullptr;
    }
}

GLenum depthFormatFor(GLenum internalFormat)
{
    return internalFormat == GL_RGB16 ? GL_DEPTH_COMPONENT16 : GL_DEPTH_COMPONENT;
}

void renderToFramebuffer(std::int32_t width, std::int32_t height, GLuint program, const FramebufferObject &target)
{
    switchOffPerFragmentTests();
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glViewport(0, 0, width, height);
    // A quad of the target's size covers the whole target, and clearing it first would cost a software driver as much
    // as half a pass.
    if (!isOfSize(target.texture, width, height)) {
        glClear(GL_COLOR_BUFFER_BIT);
    }
    setPassMatrices(width, height);

    glUseProgram(program);
    glBegin(GL_QUADS);
    glTexCoord2i(0, 1);
    glVertex2i(0, 0);
    glTexCoord2i(0, 0);
    glVertex2i(0, height);
    glTexCoord2i(1, 0);
    glVertex2i(width, height);
    glTexCoord2i(1, 1);
    glVertex2i(width, 0);
    glEnd();
    glUseProgram(0);

    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

void readPixels(const FramebufferObject &target, std::int32_t width, std::int32_t height, GLenum format, GLenum type,
                void *pixels)
{
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width, height, format, type, pixels);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

RenderTarget::RenderTarget(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat, GLenum type)
    : m_record(createFramebuffer(width, height, format, internalFormat, type))
{
}

bool RenderTarget::isComplete() const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_record.framebuffer);
    const bool complete = glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    if (!complete) {
        recordIncompleteFramebuffer();
    }
    return complete;
}

RenderTarget::~RenderTarget()
{
    deleteFramebuffer(m_record);
}

} // namespace grisal::graphics
