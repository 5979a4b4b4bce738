// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

namespace grisal::graphics
{

/// Notes what glGetError() returned; no error is no fault. Whoever asks for an error takes it away from everybody else.
void noteGlError(GLenum error);

/// Notes that a framebuffer came out incomplete.
void noteIncompleteFramebuffer();

/// Tells whether GL has reported a fault since it was made: what makes textures and framebuffers goes on after a fault,
/// and whoever needs a right result asks at the end. The context must be current.
class GlFaultWatch
{
public:
    /// Errors that nobody has asked for yet belong to the time before.
    GlFaultWatch();

    /// Whether there was no fault.
    bool isClean() const;

    /// Takes back the faults since it was made, where another way to the right result was found.
    void forgive();

private:
    unsigned m_before = 0;
};

} // namespace grisal::graphics
