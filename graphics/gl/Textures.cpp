// SPDX-License-Identifier: MIT
#include "graphics/gl/Textures.h"

#include "graphics/gl/GlErrors.h"

#include <QtGlobal>

namespace grisal::graphics
{

GLuint createTexture(std::int32_t width, std::int32_t height, GLenum internalFormat, GLenum format, GLenum type,
                     const void *data)
{
    // A pending error of an earlier call would otherwise be attributed to the upload.
    recordGlError(glGetError());

    glEnable(GL_TEXTURE_2D);
    glActiveTexture(GL_TEXTURE0);
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);

    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_MIRRORED_REPEAT);
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_MIRRORED_REPEAT);

    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(internalFormat), width, height, 0, format, type, data);

    glBindTexture(GL_TEXTURE_2D, 0);
    glDisable(GL_TEXTURE_2D);

    const GLenum error = glGetError();
    recordGlError(error);
    if (const char *text = textureErrorText(error)) {
        qWarning("%s", text);
    }
    return name;
}

GLuint create1DTexture(std::int32_t width, GLenum internalFormat, GLenum format, GLenum type, const void *data)
{
    glEnable(GL_TEXTURE_1D);
    glActiveTexture(GL_TEXTURE0);
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_1D, name);

    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage1D(GL_TEXTURE_1D, 0, static_cast<GLint>(internalFormat), width, 0, format, type, data);
    glTexParameterf(GL_TEXTURE_1D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameterf(GL_TEXTURE_1D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);

    glBindTexture(GL_TEXTURE_1D, 0);
    glDisable(GL_TEXTURE_1D);
    return name;
}

std::uint32_t largestTextureSide()
{
    GLint side = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &side);
    return static_cast<std::uint32_t>(side);
}

const char *textureErrorText(GLenum error)
{
    switch (error) {
    case GL_INVALID_ENUM:
        return "Failed to create texture: Invalid enum";
    case GL_INVALID_VALUE:
        return "Failed to create texture: Invalid value";
    case GL_INVALID_OPERATION:
        return "Failed to create texture: Invalid operation";
    case GL_STACK_OVERFLOW:
        return "Failed to create texture: Stack Overflow";
    case GL_STACK_UNDERFLOW:
        return "Failed to create texture: Stack Underflow";
    case GL_OUT_OF_MEMORY:
        return "Failed to create texture: Out of memory";
    case GL_TABLE_TOO_LARGE:
        return "Failed to create texture: Table to large";
    default:
        return nullptr;
    }
}

Texture::~Texture()
{
    if (m_name != 0) {
        glDeleteTextures(1, &m_name);
    }
}

} // namespace grisal::graphics
