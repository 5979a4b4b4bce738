// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/TilePixels.h"

#include <qfloat16.h>

#include <cstdint>
#include <vector>

namespace grisal::graphics
{

/// Formats of the tiles and of the targets they are rendered into.
struct TileFormats {
    GLenum pixelFormat;    ///< GL_RGB: tiles have three components
    GLenum pixelType;      ///< GL_UNSIGNED_BYTE, or GL_UNSIGNED_SHORT for 16-bit samples; nothing else renders
    GLenum internalFormat; ///< GL_RGB8 with bytes, GL_RGB16F with 16-bit samples
    /// 16-bit samples go to the driver and come back as half floats, converted here, which is several times as fast as
    /// the driver's conversion. Otherwise they go as they are.
    bool halfFloatTransfers = true;
};

/// The formats for an image of bytes or, with `sixteenBit`, of 16-bit samples. A driver takes half floats as pixels
/// since OpenGL 3.0 (`version30`), an older one with GL_ARB_half_float_pixel (`halfFloatPixel`).
TileFormats tileFormatsFor(bool sixteenBit, bool version30, bool halfFloatPixel);

/// Transfers the tiles of one image to the driver and back, with as few copies as possible: bytes (T is std::uint8_t)
/// or 16-bit samples (std::uint16_t), rows from top to bottom without padding. Its buffers serve all tiles. The context
/// must be current.
template <typename T>
class TileTransfer
{
public:
    /// An image of width x height pixels with `components` (3 or 4) each.
    TileTransfer(std::size_t width, std::size_t height, std::size_t components, const TileFormats &formats)
        : m_width(width), m_height(height), m_components(components), m_formats(formats)
    {
    }

    /// A new texture with that area of the image; black where the area reaches beyond it.
    Texture upload(const T *image, const TileArea &area);

    /// Reads the target, which is as large as the area, into that area of the image. What reaches beyond the image is
    /// dropped, a fourth component stays.
    void download(const FramebufferObject &target, const TileArea &area, T *image);

private:
    bool isWithin(const TileArea &area) const;
    Texture makeTexture(const TileArea &area, GLenum type, const void *pixels) const;
    Texture send(const T *pixels, std::size_t rowLength, const TileArea &area);
    Texture sendAsTheyAre(const T *pixels, std::size_t rowLength, const TileArea &area) const;
    void read(const FramebufferObject &target, const TileArea &seen, T *pixels, std::size_t rowLength);
    void readAsTheyAre(const FramebufferObject &target, const TileArea &seen, T *pixels, std::size_t rowLength) const;

    std::size_t m_width;
    std::size_t m_height;
    std::size_t m_components;
    TileFormats m_formats;
    std::vector<T> m_tile;
    std::vector<qfloat16> m_halfFloats;
};

} // namespace grisal::graphics
