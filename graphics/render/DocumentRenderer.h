// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"
#include "graphics/render/IRenderer.h"

namespace grisal::graphics
{

/// Renders a document at preview size into textures, between a target of its own and the one of the document's view.
class DocumentRenderer : public IRenderer
{
public:
    /// Makes its own target; width and height are those of the preview in pixels.
    DocumentRenderer(std::uint32_t width, std::uint32_t height, GLenum format, GLenum internalFormat, GLenum type);

    /// Renders and returns true. The first filter of the queue runs over the source even when it is disabled; when it
    /// is enabled it runs once more, over its own result. With the bypass set or no filter enabled nothing runs.
    bool render(Document &document) override;

    /// The texture with the result: the source's, the view's or the renderer's own, whichever it came to lie in.
    GLuint output() const { return m_output; }

    const FramebufferObject &target() const { return m_target.record(); }

private:
    RenderTarget m_target;
    GLuint m_output = 0;
};

} // namespace grisal::graphics
