// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QOffscreenSurface;
class QOpenGLContext;

namespace grisal::graphics
{

/// An OpenGL context without a window, current after its construction, for programs that render without displaying
/// anything. Requires a QGuiApplication. GLEW is not included here because its header conflicts with Qt's OpenGL
/// headers.
class OffscreenContext
{
public:
    OffscreenContext();
    OffscreenContext(const OffscreenContext &) = delete;
    OffscreenContext &operator=(const OffscreenContext &) = delete;
    ~OffscreenContext();

    /// Returns whether the context was created and made current.
    bool isCurrent() const { return m_current; }

private:
    std::unique_ptr<QOffscreenSurface> m_surface;
    std::unique_ptr<QOpenGLContext> m_context;
    bool m_current = false;
};

} // namespace grisal::graphics
