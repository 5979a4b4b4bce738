// SPDX-License-Identifier: MIT
#include "graphics/render/Preview.h"

#include <utility>

namespace grisal::graphics
{

namespace
{

GLuint uploadImage(const Image &image, const PixelFormats &formats)
{
    // A preview has three components even if the formats have alpha.
    return std::visit(
        [&](const auto &raster) {
            return createTexture(raster.width, raster.height, formats.internalFormat, GL_RGB, formats.pixelType,
                                 raster.samples.data());
        },
        image);
}

} // namespace

PixelFormats pixelFormatsFor(const Image &image)
{
    const bool alpha = hasAlpha(image);
    if (is16Bit(image)) {
        return alpha ? PixelFormats{GL_UNSIGNED_SHORT, GL_RGBA16, GL_RGBA}
                     : PixelFormats{GL_UNSIGNED_SHORT, GL_RGB16, GL_RGB};
    }
    return alpha ? PixelFormats{GL_UNSIGNED_BYTE, GL_RGBA8, GL_RGBA} : PixelFormats{GL_UNSIGNED_BYTE, GL_RGB8, GL_RGB};
}

Preview::Preview(const Image &image, const PixelFormats &formats, float viewportWidth, float viewportHeight)
    : m_source(uploadImage(image, formats)),
      m_view(viewportWidth, viewportHeight, static_cast<float>(widthOf(image)), static_cast<float>(heightOf(image)),
             formats.internalFormat, formats.pixelFormat, formats.pixelType),
      m_document(m_source.name(), &m_queue),
      m_renderer(static_cast<std::uint32_t>(widthOf(image)), static_cast<std::uint32_t>(heightOf(image)),
                 formats.pixelFormat, formats.internalFormat, formats.pixelType)
{
    m_document.setView(&m_view);
}

void Preview::render()
{
    m_renderer.render(m_document);
    m_mipmapsAreCurrent = false;
}

void Preview::updateMipmaps()
{
    if (std::exchange(m_mipmapsAreCurrent, true)) {
        return;
    }
    glBindTexture(GL_TEXTURE_2D, output());
    glGenerateMipmap(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, 0);
}

} // namespace grisal::graphics
