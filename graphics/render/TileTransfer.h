// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/TilePixels.h"

#include <cstdint>
#include <vector>

namespace grisal::graphics
{

/// Formats of the tiles and of the targets they are rendered into.
struct TileFormats {
    GLenum pixelFormat;    ///< GL_RGB: tiles have three components
    GLenum pixelType;      ///< GL_UNSIGNED_BYTE, or GL_UNSIGNED_SHORT for 16-bit words; nothing else renders
    GLenum internalFormat; ///< GL_RGB8 with bytes, GL_RGB16F with words
};

/// Takes the tiles of one picture to the driver and back, as directly as it goes: bytes (T is std::uint8_t) or words
/// (std::uint16_t), rows from top to bottom without padding. Its buffers serve all tiles. The context must be current.
template <typename T>
class TileTransfer
{
public:
    /// A picture of width x height pixels with `components` (3 or 4) each.
    TileTransfer(std::size_t width, std::size_t height, std::size_t components, const TileFormats &formats)
        : m_width(width), m_height(height), m_components(components), m_formats(formats)
    {
    }

    /// A new texture with that area of the picture; black where the area reaches beyond it.
    Texture upload(const T *picture, const TileArea &area);

    /// Reads the target, which is as large as the area, into that area of the picture. What reaches beyond the picture
    /// is dropped, a fourth component stays.
    void download(const FramebufferObject &target, const TileArea &area, T *picture);

private:
    bool isWithin(const TileArea &area) const;
    Texture send(const T *pixels, std::size_t rowLength, const TileArea &area);
    void read(const FramebufferObject &target, const TileArea &seen, T *pixels, std::size_t rowLength);

    std::size_t m_width;
    std::size_t m_height;
    std::size_t m_components;
    TileFormats m_formats;
    std::vector<T> m_tile;
    std::vector<std::uint16_t> m_halves;
};

} // namespace grisal::graphics
