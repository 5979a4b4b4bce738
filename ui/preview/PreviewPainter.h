// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <QSize>

namespace grisal::graphics
{
class Preview;
} // namespace grisal::graphics

namespace grisal::ui
{

// Drawing of the preview widget. The context must be current; sizes are in device pixels.

/// Makes OpenGL draw into a framebuffer of the given size.
void bindFramebuffer(GLuint framebuffer, QSize size);

/// Fills the bound framebuffer with opaque black.
void clearToBlack();

/// Draws the result of the preview's last render, if there is one, through its view into the bound framebuffer, whose
/// pixels stay opaque.
/// The image has the given size. At scales below 1 it is filtered with mipmaps, as a reduced copy of the file would be;
/// at 1 and above, image pixels stay sharp squares.
void drawPreview(graphics::Preview &preview, QSize imageSize);

/// Draws the focus mark at the edge of the bound framebuffer, with lines of `unit` pixels.
void drawFocusMark(QSize size, int unit);

} // namespace grisal::ui
