// SPDX-License-Identifier: MIT
#include "ui/preview/PreviewPainter.h"

#include "graphics/render/Preview.h"
#include "ui/accessible/FocusMark.h"

namespace grisal::ui
{

namespace
{

// Between two mipmaps, the sharper one counts more: an unbiased choice blurs fine detail.
constexpr float sharperMipmaps = -0.5F;

void filterReducedTexture(GLint filter, float bias)
{
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
    glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_LOD_BIAS, bias);
}

void drawQuad(int width, int height)
{
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
    if (preview.output() == 0) {
        return;
    }
    preview.view().setup();
    // After the render, because creating textures switches them off.
    glEnable(GL_TEXTURE_2D);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE); // transparent parts of the image stay opaque on the screen
    const bool reduced = preview.view().scale() < 1;
    if (reduced) {
        preview.updateMipmaps();
    }
    glBindTexture(GL_TEXTURE_2D, preview.output());
    if (reduced) {
        filterReducedTexture(GL_LINEAR_MIPMAP_LINEAR, sharperMipmaps);
    }
    drawQuad(imageSize.width(), imageSize.height());
    // The passes of the next render read single pixels of this texture.
    filterReducedTexture(GL_NEAREST, 0);
    glBindTexture(GL_TEXTURE_2D, 0);
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
