// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"
#include "graphics/render/IRenderer.h"

namespace grisal::graphics
{

/// Renders a document at preview size. The passes alternate between the renderer's own target and the target of the
/// document's view.
class DocumentRenderer : public IRenderer
{
public:
    /// Creates the renderer's target; width and height are those of the preview in pixels.
    DocumentRenderer(std::uint32_t width, std::uint32_t height, GLenum format, GLenum internalFormat, GLenum type);

    /// Renders and returns true. The first filter of the queue runs on the source even if it is disabled; if it is
    /// enabled, it runs a second time on its own result. If the bypass is set or no filter is enabled, no filter runs.
    bool render(Document &document) override;

    /// Returns the texture that contains the result: the source, the texture of the view's target or that of the
    /// renderer's target.
    GLuint output() const { return m_output; }

    const FramebufferObject &target() const { return m_target.record(); }

private:
    RenderTarget m_target;
    GLuint m_output = 0;
};

} // namespace grisal::graphics
