// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"

namespace grisal::graphics
{

/// Defines how a document is displayed, and owns a render target of the image's size. The context must be current when
/// the view is created and destroyed.
class DocumentView
{
public:
    DocumentView(int width, int height, GLenum format, GLenum internalFormat, GLenum type);
    DocumentView(const DocumentView &) = delete;
    DocumentView &operator=(const DocumentView &) = delete;

    /// Sets the viewport and the matrices for drawing the image on the screen.
    virtual void setup() = 0;

    virtual ~DocumentView() = default;

    const FramebufferObject &target() const { return m_target.record(); }

private:
    RenderTarget m_target;
};

} // namespace grisal::graphics
