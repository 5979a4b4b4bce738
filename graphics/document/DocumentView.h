// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"

namespace grisal::graphics
{

/// How a document is put on the screen, with a render target of the picture's size. Owns the target: made and
/// destroyed with the context current.
class DocumentView
{
public:
    DocumentView(int width, int height, GLenum format, GLenum internalFormat, GLenum type);
    DocumentView(const DocumentView &) = delete;
    DocumentView &operator=(const DocumentView &) = delete;

    /// Sets viewport and matrices for drawing the picture on the screen.
    virtual void setup() = 0;

    virtual ~DocumentView() = default;

    const FramebufferObject &target() const { return m_target.record(); }

private:
    RenderTarget m_target;
};

} // namespace grisal::graphics
