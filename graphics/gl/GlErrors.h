// SPDX-License-Identifier: MIT
#pragma once

class QOpenGLContext;

namespace grisal::graphics
{

// GLEW is not included here because its header conflicts with that of QOpenGLContext.

/// Records an error (a GLenum) that glGetError() returned for the current context; GL_NO_ERROR is ignored. Because
/// glGetError() clears the error, every caller must record it here.
void recordGlError(unsigned error);

/// Records that a framebuffer of the current context is incomplete.
void recordIncompleteFramebuffer();

/// Detects OpenGL errors that are recorded after its construction. Functions that create textures and framebuffers
/// continue after an error; code that needs a correct result checks isClean() at the end. The context must be current.
/// It stores the number of its errors, because OpenGL's error flag belongs to the context, too.
class GlErrorScope
{
public:
    /// Collects the errors that are still pending; they count as earlier errors.
    GlErrorScope();

    /// Returns whether no error has been recorded since the construction and the same context is current.
    bool isClean() const;

    /// Discards the errors since the construction, for callers that obtained the correct result in another way.
    void clear();

private:
    QOpenGLContext *m_context;
    unsigned m_before = 0;
};

} // namespace grisal::graphics
