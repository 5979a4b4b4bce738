// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/document/Document.h"
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/gl/Textures.h"
#include "graphics/image/Image.h"
#include "graphics/render/DocumentRenderer.h"

namespace grisal::graphics
{

/// The OpenGL formats of an image.
struct PixelFormats {
    GLenum pixelType = GL_UNSIGNED_BYTE;
    GLenum internalFormat = GL_RGB8;
    GLenum pixelFormat = GL_RGB;
};

/// Returns the formats of an image: GL_RGB8 for 8-bit samples and GL_RGB16 for 16-bit samples; with alpha, GL_RGBA8 and
/// GL_RGBA16.
PixelFormats pixelFormatsFor(const Image &image);

/// An image at preview size and the objects that display it with filters: its texture, queue, document, view and
/// renderer. The context must be current when it is created, used and destroyed.
class Preview
{
public:
    /// Uploads the image, which has no alpha and is not needed afterwards. The viewport size is that of the drawing
    /// area in device pixels.
    Preview(const Image &image, const PixelFormats &formats, float viewportWidth, float viewportHeight);

    Document &document() { return m_document; }
    FlexibleDocumentView &view() { return m_view; }
    const FlexibleDocumentView &view() const { return m_view; }
    DocumentFilterQueue &queue() { return m_queue; }

    /// Runs the queue; output() then returns the texture with the result.
    void render();
    GLuint output() const { return m_renderer.output(); }

    /// Makes output() contain the mipmaps of the last render. Does nothing if it already contains them.
    void updateMipmaps();

private:
    Texture m_source;
    DocumentFilterQueue m_queue;
    FlexibleDocumentView m_view;
    Document m_document;
    DocumentRenderer m_renderer;
    bool m_mipmapsAreCurrent = false;
};

} // namespace grisal::graphics
