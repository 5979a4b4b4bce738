// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <utility>

namespace grisal::graphics
{

/// Creates a 2D texture of width x height texels with nearest filtering and mirrored repeat in both directions.
///
/// The context must be current. The rows of `data` are not padded, whatever their length; the first row comes first. If
/// `data` is null, the texels are undefined. The caller owns the returned name. Afterwards unit 0 is active and no 2D
/// texture is bound to it. An OpenGL error is logged as a warning, and the name is returned nevertheless.
GLuint createTexture(std::int32_t width, std::int32_t height, GLenum internalFormat, GLenum format, GLenum type,
                     const void *data);

/// Creates a 1D texture of `width` texels with nearest filtering and repeat. Ownership and context as for
/// createTexture(). OpenGL errors are not checked.
GLuint create1DTexture(std::int32_t width, GLenum internalFormat, GLenum format, GLenum type, const void *data);

/// Returns the largest width and height of a 2D texture, in texels, that the OpenGL driver supports. The context must
/// be current.
std::uint32_t largestTextureSide();

/// Returns the log text for an OpenGL error of createTexture(), or null if the error needs no log entry.
const char *textureErrorText(GLenum error);

/// Owns a texture name and deletes it in its destructor; the context must then be current. Not copyable.
class Texture
{
public:
    Texture() = default;
    explicit Texture(GLuint name) : m_name(name) {}
    Texture(Texture &&other) noexcept : m_name(std::exchange(other.m_name, 0)) {}
    Texture &operator=(Texture &&other) noexcept
    {
        std::swap(m_name, other.m_name);
        return *this;
    }
    Texture(const Texture &) = delete;
    Texture &operator=(const Texture &) = delete;
    ~Texture();

    GLuint name() const { return m_name; }

private:
    GLuint m_name = 0;
};

} // namespace grisal::graphics
