// SPDX-License-Identifier: MIT
#include "graphics/gl/GL.h"

namespace grisal::graphics
{

GlStart initialiseGlEntryPoints()
{
    const GLenum status = glewInit();
    const bool usable = status == GLEW_OK || status == GLEW_ERROR_NO_GLX_DISPLAY;
    if (!usable || glGetString(GL_VERSION) == nullptr) {
        return GlStart::NoContext;
    }
    const bool complete = GLEW_VERSION_2_1 && glGenFramebuffers != nullptr && glCreateShader != nullptr;
    return complete ? GlStart::Ready : GlStart::TooOld;
}

} // namespace grisal::graphics
