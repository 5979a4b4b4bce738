// SPDX-License-Identifier: MIT
#include "graphics/gl/GlErrors.h"

#include <QOpenGLContext>
#include <QVariant>

namespace grisal::graphics
{

namespace
{

constexpr const char *countProperty = "grisalErrorCount";

/// The number of errors recorded for the current context, stored in it; 0 without a context.
unsigned errorCount()
{
    const QOpenGLContext *context = QOpenGLContext::currentContext();
    return context != nullptr ? context->property(countProperty).toUInt() : 0;
}

void setErrorCount(unsigned count)
{
    if (QOpenGLContext *context = QOpenGLContext::currentContext()) {
        context->setProperty(countProperty, count);
    }
}

// The loop is limited because a lost context may report errors endlessly.
void collectErrors()
{
    constexpr int most = 16;
    for (int i = 0; i < most; ++i) {
        const GLenum error = glGetError();
        if (error == GL_NO_ERROR) {
            return;
        }
        recordGlError(error);
    }
}

} // namespace

void recordGlError(unsigned error)
{
    if (error != GL_NO_ERROR) {
        setErrorCount(errorCount() + 1);
    }
}

void recordIncompleteFramebuffer()
{
    setErrorCount(errorCount() + 1);
}

GlErrorScope::GlErrorScope() : m_context(QOpenGLContext::currentContext())
{
    collectErrors();
    m_before = errorCount();
}

bool GlErrorScope::isClean() const
{
    collectErrors();
    return m_context != nullptr && m_context == QOpenGLContext::currentContext() && errorCount() == m_before;
}

void GlErrorScope::clear()
{
    collectErrors();
    setErrorCount(m_before);
}

} // namespace grisal::graphics
