// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

namespace grisal::graphics
{

/// Records an error that glGetError() returned; GL_NO_ERROR is ignored. Because glGetError() clears the error, every
/// caller must record it here.
void noteGlError(GLenum error);

/// Records that a framebuffer is incomplete.
void noteIncompleteFramebuffer();

/// Detects OpenGL faults that are recorded after its construction. Functions that create textures and framebuffers
/// continue after a fault; code that needs a correct result checks isClean() at the end. The context must be current.
class GlFaultWatch
{
public:
    /// Collects the errors that are still pending; they count as earlier faults.
    GlFaultWatch();

    /// Returns whether no fault has been recorded since the construction.
    bool isClean() const;

    /// Discards the faults since the construction, for callers that obtained the correct result in another way.
    void forgive();

private:
    unsigned m_before = 0;
};

} // namespace grisal::graphics
