// SPDX-License-Identifier: MIT
#include "tests/support/OffscreenContext.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>

namespace grisal::test
{

OffscreenContext::OffscreenContext()
    : m_surface(std::make_unique<QOffscreenSurface>()), m_context(std::make_unique<QOpenGLContext>())
{
    m_surface->create();
    m_current = m_context->create() && m_context->makeCurrent(m_surface.get());
}

OffscreenContext::~OffscreenContext() = default;

} // namespace grisal::test
