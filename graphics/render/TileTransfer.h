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

/// The formats of the tiles and of the targets into which they are rendered.
struct TileFormats {
    GLenum pixelFormat;    ///< GL_RGB: tiles have three components
    GLenum pixelType;      ///< GL_UNSIGNED_BYTE, or GL_UNSIGNED_SHORT for 16-bit samples; others are not rendered
    GLenum internalFormat; ///< GL_RGB8 for 8-bit samples, GL_RGB16F for 16-bit samples
    /// If true, TileTransfer converts 16-bit samples to half floats before uploads and back after downloads, which is
    /// several times as fast as the conversion of the OpenGL driver. Otherwise it transfers 16-bit samples.
    bool halfFloatTransfers = true;
};

/// Returns the formats for an image whose samples have the type T, std::uint8_t or std::uint16_t. OpenGL accepts half
/// floats as pixel data since version 3.0 (`version30`), earlier versions with GL_ARB_half_float_pixel
/// (`halfFloatPixel`).
template <typename T>
TileFormats tileFormatsFor(bool version30, bool halfFloatPixel);
template <>
TileFormats tileFormatsFor<std::uint8_t>(bool version30, bool halfFloatPixel);
template <>
TileFormats tileFormatsFor<std::uint16_t>(bool version30, bool halfFloatPixel);

/// Uploads the tiles of an image to textures and reads the rendered tiles back, with as few copies as possible. T is
/// the type of a sample, std::uint8_t or std::uint16_t; rows are stored from top to bottom without padding. The buffers
/// are reused for all tiles. The context must be current.
template <typename T>
class TileTransfer
{
public:
    /// An image of width x height pixels with `components` (3 or 4) each.
    TileTransfer(std::size_t width, std::size_t height, std::size_t components, const TileFormats &formats)
        : m_width(width), m_height(height), m_components(components), m_formats(formats)
    {
    }

    /// Returns a new texture with the given area of the image; texels outside the image are black.
    Texture upload(const T *image, const TileArea &area);

    /// Reads the target, which has the size of the area, into this area of the image. Pixels outside the image are
    /// dropped; a fourth component of the image stays unchanged.
    void download(const FramebufferObject &target, const TileArea &area, T *image);

private:
    bool isWithin(const TileArea &area) const;
    Texture send(const T *pixels, std::size_t rowLength, const TileArea &area);
    Texture uploadDirectly(const T *pixels, std::size_t rowLength, const TileArea &area) const;
    void read(const FramebufferObject &target, const TileArea &seen, T *pixels, std::size_t rowLength);
    void readDirectly(const FramebufferObject &target, const TileArea &seen, T *pixels, std::size_t rowLength) const;

    std::size_t m_width;
    std::size_t m_height;
    std::size_t m_components;
    TileFormats m_formats;
    std::vector<T> m_tile;
    std::vector<qfloat16> m_halfFloats;
};

} // namespace grisal::graphics
