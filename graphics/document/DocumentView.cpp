// SPDX-License-Identifier: MIT
#include "graphics/document/DocumentView.h"

namespace grisal::graphics
{

DocumentView::DocumentView(int width, int height, GLenum format, GLenum internalFormat, GLenum type)
    : m_target(createColourFramebuffer(width, height, format, internalFormat, type))
{
}

} // namespace grisal::graphics
