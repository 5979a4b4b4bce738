// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <utility>

namespace grisal::graphics
{

/// Makes a 2D texture of width x height texels: nearest filtering, mirrored repeat in both directions.
///
/// The context must be current. Rows of `data` follow each other without padding, whatever their length, first row
/// first; `data` may be null, then the texels are undefined. The caller owns the name. Unit 0 is active afterwards
/// and no 2D texture is bound on it. A GL error is written to the log as a warning and the name is returned all the
/// same.
GLuint createTexture(std::int32_t width, std::int32_t height, GLenum internalFormat, GLenum format, GLenum type,
                     const void *data);

/// Makes a 1D texture of `width` texels: nearest filtering, repeat. Ownership and context as for createTexture().
/// Errors are not looked at.
GLuint create1DTexture(std::int32_t width, GLenum internalFormat, GLenum format, GLenum type, const void *data);

/// The largest side of a 2D texture that the driver offers, in texels. The context must be current.
std::uint32_t largestTextureSide();

/// The log text for the GL error that followed the making of a texture; null where nothing is to be said.
const char *textureErrorText(GLenum error);

/// Owns one texture name; deletes it, with the context current, at the end of its life. Not copyable.
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
