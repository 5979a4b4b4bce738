// SPDX-License-Identifier: MIT
#include "graphics/document/FlexibleDocumentView.h"

#include <cmath>

namespace grisal::graphics
{

namespace
{

/// Returns the scale at which the image is drawn. A step in and a step out again lead to 0.99999994, not to 1.
float drawnScale(float scale)
{
    constexpr float roundingError = 1e-4F;
    return std::abs(scale - 1) < roundingError ? 1 : scale;
}

/// Returns the offset at which the image is drawn. At scale 1 the edge of the image is aligned to a device pixel:
/// between two device pixels, some rows and columns would be drawn twice or skipped.
float drawnOffset(float offset, float scale, int imageSide)
{
    const float half = static_cast<float>(imageSide) * 0.5F;
    return scale == 1.0F ? std::floor(offset - half + 0.5F) + half : offset;
}

} // namespace

FlexibleDocumentView::FlexibleDocumentView(float viewportWidth, float viewportHeight, float imageWidth,
                                           float imageHeight, GLenum internalFormat, GLenum pixelFormat,
                                           GLenum pixelType)
    : DocumentView(static_cast<int>(imageWidth), static_cast<int>(imageHeight), pixelFormat, internalFormat, pixelType),
      m_imageWidth(static_cast<int>(imageWidth)), m_imageHeight(static_cast<int>(imageHeight)),
      m_offsetX(viewportWidth * 0.5F), m_offsetY(viewportHeight * 0.5F), m_viewportWidth(viewportWidth),
      m_viewportHeight(viewportHeight)
{
}

void FlexibleDocumentView::setup()
{
    glViewport(0, 0, static_cast<GLsizei>(m_viewportWidth), static_cast<GLsizei>(m_viewportHeight));
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluOrtho2D(0, m_viewportWidth, 0, m_viewportHeight);

    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    const float scale = drawnScale(m_scale);
    glTranslatef(drawnOffset(m_offsetX, scale, m_imageWidth), drawnOffset(m_offsetY, scale, m_imageHeight), 0);
    // The z scale is 0 because the image is flat.
    glScalef(scale, scale, 0);
    glTranslatef(static_cast<float>(-m_imageWidth) * 0.5F, static_cast<float>(-m_imageHeight) * 0.5F, 0);
}

void FlexibleDocumentView::setViewportSize(float width, float height)
{
    m_viewportWidth = width;
    m_viewportHeight = height;
}

void FlexibleDocumentView::setOffset(float x, float y)
{
    m_offsetX = x;
    m_offsetY = y;
}

void FlexibleDocumentView::centre()
{
    m_offsetX = m_viewportWidth * 0.5F;
    m_offsetY = m_viewportHeight * 0.5F;
}

} // namespace grisal::graphics
