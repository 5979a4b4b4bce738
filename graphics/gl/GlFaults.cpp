// SPDX-License-Identifier: MIT
#include "graphics/gl/GlFaults.h"

namespace grisal::graphics
{

namespace
{

unsigned faults = 0;

// The loop is limited because a lost context may report errors endlessly.
void collectErrors()
{
    constexpr int most = 16;
    for (int i = 0; i < most; ++i) {
        const GLenum error = glGetError();
        if (error == GL_NO_ERROR) {
            return;
        }
        noteGlError(error);
    }
}

} // namespace

void noteGlError(GLenum error)
{
    if (error != GL_NO_ERROR) {
        ++faults;
    }
}

void noteIncompleteFramebuffer()
{
    ++faults;
}

GlFaultWatch::GlFaultWatch()
{
    collectErrors();
    m_before = faults;
}

bool GlFaultWatch::isClean() const
{
    collectErrors();
    return faults == m_before;
}

void GlFaultWatch::forgive()
{
    collectErrors();
    faults = m_before;
}

} // namespace grisal::graphics
