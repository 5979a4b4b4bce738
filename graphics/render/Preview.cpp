// SPDX-License-Identifier: MIT
#include "graphics/render/Preview.h"

#include "graphics/image/PreviewPixels.h"

namespace grisal::graphics
{

PixelFormats pixelFormatsFor(bool sixteenBit, bool alpha)
{
    if (sixteenBit) {
        return alpha ? PixelFormats{GL_UNSIGNED_SHORT, GL_RGBA16, GL_RGBA}
                     : PixelFormats{GL_UNSIGNED_SHORT, GL_RGB16, GL_RGB};
    }
    return alpha ? PixelFormats{GL_UNSIGNED_BYTE, GL_RGBA8, GL_RGBA} : PixelFormats{GL_UNSIGNED_BYTE, GL_RGB8, GL_RGB};
}

// The preview's pixels always have three components, so they are uploaded as GL_RGB even if the formats have alpha.
Preview::Preview(const PreviewPixels &pixels, const PixelFormats &formats, float viewportWidth, float viewportHeight)
    : m_source(
          createTexture(pixels.width, pixels.height, formats.internalFormat, GL_RGB, formats.pixelType, pixels.data())),
      m_view(viewportWidth, viewportHeight, static_cast<float>(pixels.width), static_cast<float>(pixels.height),
             formats.internalFormat, formats.pixelFormat, formats.pixelType),
      m_document(m_source.name(), &m_queue),
      m_renderer(static_cast<std::uint32_t>(pixels.width), static_cast<std::uint32_t>(pixels.height),
                 formats.pixelFormat, formats.internalFormat, formats.pixelType)
{
    m_document.setView(&m_view);
}

} // namespace grisal::graphics
