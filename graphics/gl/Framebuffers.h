// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

namespace grisal::graphics
{

/// The three OpenGL names of a render target. Neither the struct nor its copies own them.
struct FramebufferObject {
    GLuint texture = 0;      ///< the colour texture into which passes are rendered
    GLuint renderbuffer = 0; ///< the depth renderbuffer; 0 if there is none
    GLuint framebuffer = 0;  ///< the framebuffer object
};

/// Creates a render target of width x height pixels. The pixel format comes before the internal format, unlike in
/// createTexture().
///
/// The context must be current. The caller owns the three names. An incomplete framebuffer is logged as a warning and
/// returned nevertheless. The depth buffer has 16 bits if the internal format is GL_RGB16; otherwise the OpenGL driver
/// chooses its depth. Framebuffer 0 is bound afterwards.
FramebufferObject createFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                    GLenum type);

/// As createFramebuffer(), but without a depth renderbuffer, whose name is then 0: for targets so large that a depth
/// buffer would take too much memory.
FramebufferObject createColourFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                          GLenum type);

/// Deletes the OpenGL objects of a target. The context must be current.
void deleteFramebuffer(const FramebufferObject &target);

/// Returns the log text for a framebuffer status, or null if the status needs no log entry.
const char *framebufferStatusText(GLenum status);

/// Returns the depth format that createFramebuffer() uses with a colour format.
GLenum depthFormatFor(GLenum internalFormat);

/// Draws a quad that covers width x height pixels of `target`, with a linked program. All filters draw with this
/// function.
///
/// The context must be current. The part of the target outside the quad is cleared. The viewport and both matrices are
/// set to the size of the pass. Blending and the scissor, depth and stencil tests are disabled. Afterwards no program
/// is in use and framebuffer 0 is bound.
void renderToFramebuffer(std::int32_t width, std::int32_t height, GLuint program, const FramebufferObject &target);

/// Reads width x height pixels of `target`, starting at its first row, into `pixels`, without row padding. The caller
/// provides width * height * components(format) * sizeof(type) bytes. Framebuffer 0 is bound afterwards.
void readPixels(const FramebufferObject &target, std::int32_t width, std::int32_t height, GLenum format, GLenum type,
                void *pixels);

/// Owns a render target. One constructor creates it, the other takes ownership of an existing one; the destructor
/// deletes it. The context must be current when the target is created and deleted.
class RenderTarget
{
public:
    RenderTarget(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat, GLenum type);
    /// Takes ownership of the names.
    explicit RenderTarget(const FramebufferObject &record) : m_record(record) {}
    RenderTarget(const RenderTarget &) = delete;
    RenderTarget &operator=(const RenderTarget &) = delete;
    ~RenderTarget();

    const FramebufferObject &record() const { return m_record; }

    /// Returns whether the OpenGL driver can render into the target. Pixels that are read from an incomplete target are
    /// undefined. The context must be current.
    bool isComplete() const;

private:
    FramebufferObject m_record;
};

} // namespace grisal::graphics
