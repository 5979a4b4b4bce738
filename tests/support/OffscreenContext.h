// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QOffscreenSurface;
class QOpenGLContext;

namespace grisal::test
{

/// A GL context without a window, current from its making on. Needs a QGuiApplication. Knows nothing of GLEW, whose
/// header does not go together with the toolkit's.
class OffscreenContext
{
public:
    OffscreenContext();
    OffscreenContext(const OffscreenContext &) = delete;
    OffscreenContext &operator=(const OffscreenContext &) = delete;
    ~OffscreenContext();

    /// Whether there is a context and it could be made current.
    bool isCurrent() const { return m_current; }

private:
    std::unique_ptr<QOffscreenSurface> m_surface;
    std::unique_ptr<QOpenGLContext> m_context;
    bool m_current = false;
};

} // namespace grisal::test
