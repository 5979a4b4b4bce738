// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

namespace grisal::graphics
{

/// Three GL names that make a render target. A plain record: copies own nothing.
struct FramebufferObject {
    GLuint texture = 0;      ///< the colour texture that is rendered into
    GLuint renderbuffer = 0; ///< the depth renderbuffer
    GLuint framebuffer = 0;  ///< the framebuffer object itself
};

/// Makes a render target of width x height pixels. Mind the order of the formats: pixel format first.
///
/// The context must be current. The caller owns the three names. An incomplete target is reported in the log and
/// returned all the same. The depth buffer has 16 bits beside GL_RGB16 and the driver's choice beside anything else.
/// Framebuffer 0 is bound afterwards.
FramebufferObject createFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                    GLenum type);

/// The same without a depth renderbuffer, whose name is 0, for targets so large that one would cost too much.
FramebufferObject createColourFramebuffer(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat,
                                          GLenum type);

/// Deletes the names of a target. The context must be current.
void deleteFramebuffer(const FramebufferObject &target);

/// The log text for a framebuffer status; null where nothing is to be said.
const char *framebufferStatusText(GLenum status);

/// The depth format that goes with a colour format.
GLenum depthFormatFor(GLenum internalFormat);

/// Draws one quad over width x height pixels of `target` with a linked program; the only drawing of the filters.
///
/// The context must be current. What the pass does not cover of the target is cleared, the viewport and both
/// matrices are set to the pass. Blending, scissor, depth and stencil tests are switched off. Afterwards no program is
/// in use and framebuffer 0 is bound.
void renderToFramebuffer(std::int32_t width, std::int32_t height, GLuint program, const FramebufferObject &target);

/// Reads width x height pixels of `target`, from its first row on, into `pixels` without row padding. The caller
/// provides width * height * components(format) * sizeof(type) bytes. Framebuffer 0 is bound afterwards.
void readPixels(const FramebufferObject &target, std::int32_t width, std::int32_t height, GLenum format, GLenum type,
                void *pixels);

/// Owns one render target; makes it at construction or takes it over, deletes it, with the context current, at the end
/// of its life.
class RenderTarget
{
public:
    RenderTarget(std::int32_t width, std::int32_t height, GLenum format, GLenum internalFormat, GLenum type);
    /// Takes over the names.
    explicit RenderTarget(const FramebufferObject &record) : m_record(record) {}
    RenderTarget(const RenderTarget &) = delete;
    RenderTarget &operator=(const RenderTarget &) = delete;
    ~RenderTarget();

    const FramebufferObject &record() const { return m_record; }

    /// Whether the driver can draw into it; what is read out of a target that is not complete is garbage.
    bool isComplete() const;

private:
    FramebufferObject m_record;
};

} // namespace grisal::graphics
