// SPDX-License-Identifier: MIT
#include "ui/preview/PreviewPainter.h"

#include "graphics/render/Preview.h"
#include "ui/accessible/FocusMark.h"

namespace grisal::ui
{

namespace
{

void drawQuad(GLuint texture, int width, int height)
{
    glBindTexture(GL_TEXTURE_2D, texture);
    glBegin(GL_QUADS);
    glTexCoord2i(0, 1);
    glVertex2i(0, 0);
    glTexCoord2i(0, 0);
    glVertex2i(0, height);
    glTexCoord2i(1, 0);
    glVertex2i(width, height);
    glTexCoord2i(1, 1);
    glVertex2i(width, 0);
    glEnd();
    glBindTexture(GL_TEXTURE_2D, 0);
}

} // namespace

void bindFramebuffer(GLuint framebuffer, QSize size)
{
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glViewport(0, 0, size.width(), size.height());
    glActiveTexture(GL_TEXTURE0);
}

void clearToBlack()
{
    // Pixels that are not opaque would show the desktop where windows can be transparent, for example on Wayland.
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT);
}

void drawPreview(graphics::Preview &preview, QSize imageSize)
{
    preview.view().setup();
    // After the render, because creating textures switches them off.
    glEnable(GL_TEXTURE_2D);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE); // transparent parts of the image stay opaque on the screen
    drawQuad(preview.output(), imageSize.width(), imageSize.height());
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_TEXTURE_2D);
}

// Drawn by clearing, which needs neither the view nor a QPainter, whose state changes would affect the next paint. The
// mark is symmetrical, so the direction of the y axis makes no difference.
void drawFocusMark(QSize size, int unit)
{
    glEnable(GL_SCISSOR_TEST);
    for (const FocusMarkLine &line : focusMarkLines(QRect(QPoint(), size), unit)) {
        const float grey = line.dark ? 0 : 1;
        glScissor(line.place.x(), line.place.y(), line.place.width(), line.place.height());
        glClearColor(grey, grey, grey, 1);
        glClear(GL_COLOR_BUFFER_BIT);
    }
    glDisable(GL_SCISSOR_TEST);
}

} // namespace grisal::ui
