// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/document/DocumentView.h"

namespace grisal::graphics
{

/// A view that pans and zooms. An image point (x, y), y counted upwards from the bottom of the drawn quad, is drawn at
/// offset + scale * (point - image size / 2), in device pixels from the bottom left of the viewport. The offset is the
/// position of the image's centre; the scale is the number of device pixels per image pixel. At scale 1 the image is
/// aligned to device pixels, at most half a pixel away from the offset.
class FlexibleDocumentView : public DocumentView
{
public:
    /// Sizes are in pixels; those of the image are truncated to integers. The image is initially centred, at scale 1.
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

    /// Moves the centre of the image to the centre of the viewport.
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
