// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/document/Document.h"
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/DocumentRenderer.h"

namespace grisal::graphics
{

struct PreviewPixels;

/// The GL enums that go with the pixels of a picture.
struct PixelFormats {
    GLenum pixelType = GL_UNSIGNED_BYTE;
    GLenum internalFormat = GL_RGB8;
    GLenum pixelFormat = GL_RGB;
};

/// Bytes go with GL_RGB8, 16-bit words with GL_RGB16; with alpha GL_RGBA8 and GL_RGBA16.
PixelFormats pixelFormatsFor(bool sixteenBit, bool alpha);

/// One picture at preview size and all it takes to show it through filters: its texture, queue, document, view and
/// renderer. Made, used and destroyed with the context current.
class Preview
{
public:
    /// Uploads the pixels, which are not needed afterwards. The viewport is the drawing area in device pixels.
    Preview(const PreviewPixels &pixels, const PixelFormats &formats, float viewportWidth, float viewportHeight);

    Document &document() { return m_document; }
    FlexibleDocumentView &view() { return m_view; }
    const FlexibleDocumentView &view() const { return m_view; }
    DocumentFilterQueue &queue() { return m_queue; }

    /// Runs the queue; output() is the texture with the result.
    void render() { m_renderer.render(m_document); }
    GLuint output() const { return m_renderer.output(); }

private:
    Texture m_source;
    DocumentFilterQueue m_queue;
    FlexibleDocumentView m_view;
    Document m_document;
    DocumentRenderer m_renderer;
};

} // namespace grisal::graphics
