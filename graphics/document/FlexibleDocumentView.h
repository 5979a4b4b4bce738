// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/document/DocumentView.h"

namespace grisal::graphics
{

/// A view that pans and zooms. A picture point (x, y), y counted upwards from the bottom of the drawn quad, lands at
/// offset + scale * (point - picture size / 2), in device pixels from the bottom left of the viewport: the offset is
/// where the middle of the picture lies, the scale is device pixels per picture pixel. At scale 1 the picture is drawn at
/// whole device pixels, half a pixel beside the offset at the most.
class FlexibleDocumentView : public DocumentView
{
public:
    /// Sizes in pixels; those of the picture are truncated. The picture lies in the middle at scale 1.
    FlexibleDocumentView(float viewportWidth, float viewportHeight, float imageWidth, float imageHeight,
                         GLenum internalFormat, GLenum pixelFormat, GLenum pixelType);

    void setup() override;

    void setViewportSize(float width, float height);
    float viewportWidth() const { return m_viewportWidth; }
    float viewportHeight() const { return m_viewportHeight; }

    float scale() const { return m_scale; }
    void setScale(float scale) { m_scale = scale; }

    float offsetX() const { return m_offsetX; }
    float offsetY() const { return m_offsetY; }
    void setOffset(float x, float y);

    /// Puts the middle of the picture into the middle of the viewport.
    void centre();

private:
    int m_imageWidth;
    int m_imageHeight;
    float m_scale = 1.0F;
    float m_offsetX;
    float m_offsetY;
    float m_viewportWidth;
    float m_viewportHeight;
};

} // namespace grisal::graphics
