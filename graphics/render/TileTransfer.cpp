// SPDX-License-Identifier: MIT
#include "graphics/render/TileTransfer.h"

#include "graphics/image/HalfFloats.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

/// Sets the row length, in pixels, of the memory that OpenGL reads or writes, and resets it in its destructor.
class RowLength
{
public:
    RowLength(GLenum direction, std::size_t pixels) : m_direction(direction)
    {
        glPixelStorei(m_direction, static_cast<GLint>(pixels));
    }
    RowLength(const RowLength &) = delete;
    RowLength &operator=(const RowLength &) = delete;
    ~RowLength() { glPixelStorei(m_direction, 0); }

private:
    GLenum m_direction;
};

template <typename Component>
Texture createTileTexture(const TileArea &area, const TileFormats &formats, GLenum type, const Component *pixels)
{
    return Texture(createTexture(static_cast<std::int32_t>(area.width), static_cast<std::int32_t>(area.height),
                                 formats.internalFormat, formats.pixelFormat, type, pixels));
}

} // namespace

template <>
TileFormats tileFormatsFor<std::uint8_t>(bool /*version30*/, bool /*halfFloatPixel*/)
{
    return {GL_RGB, GL_UNSIGNED_BYTE, GL_RGB8};
}

template <>
TileFormats tileFormatsFor<std::uint16_t>(bool version30, bool halfFloatPixel)
{
    return {GL_RGB, GL_UNSIGNED_SHORT, GL_RGB16F, version30 || halfFloatPixel};
}

template <typename T>
bool TileTransfer<T>::isWithin(const TileArea &area) const
{
    return area.x + area.width <= m_width && area.y + area.height <= m_height;
}

template <typename T>
Texture TileTransfer<T>::uploadDirectly(const T *pixels, std::size_t rowLength, const TileArea &area) const
{
    const RowLength length(GL_UNPACK_ROW_LENGTH, rowLength);
    return createTileTexture(area, m_formats, m_formats.pixelType, pixels);
}

template <>
Texture TileTransfer<std::uint8_t>::send(const std::uint8_t *pixels, std::size_t rowLength, const TileArea &area)
{
    return uploadDirectly(pixels, rowLength, area);
}

template <>
Texture TileTransfer<std::uint16_t>::send(const std::uint16_t *pixels, std::size_t rowLength, const TileArea &area)
{
    if (!m_formats.halfFloatTransfers) {
        return uploadDirectly(pixels, rowLength, area);
    }
    const std::size_t row = area.width * tileComponents;
    m_halfFloats.resize(row * area.height);
    for (std::size_t y = 0; y < area.height; ++y) {
        convertToHalfFloats(pixels + y * rowLength * tileComponents, row, m_halfFloats.data() + y * row);
    }
    return createTileTexture(area, m_formats, GL_HALF_FLOAT, m_halfFloats.data());
}

template <typename T>
Texture TileTransfer<T>::upload(const T *image, const TileArea &area)
{
    const bool direct = m_components == tileComponents && isWithin(area);
    if (!direct) {
        copyTile(image, m_width, m_height, m_components, area, m_tile);
    }
    const T *pixels = direct ? image + (area.y * m_width + area.x) * tileComponents : m_tile.data();
    return send(pixels, direct ? m_width : area.width, area);
}

template <typename T>
void TileTransfer<T>::readDirectly(const FramebufferObject &target, const TileArea &seen, T *pixels,
                                   std::size_t rowLength) const
{
    const RowLength length(GL_PACK_ROW_LENGTH, rowLength);
    readPixels(target, static_cast<std::int32_t>(seen.width), static_cast<std::int32_t>(seen.height),
               m_formats.pixelFormat, m_formats.pixelType, pixels);
}

template <>
void TileTransfer<std::uint8_t>::read(const FramebufferObject &target, const TileArea &seen, std::uint8_t *pixels,
                                      std::size_t rowLength)
{
    readDirectly(target, seen, pixels, rowLength);
}

template <>
void TileTransfer<std::uint16_t>::read(const FramebufferObject &target, const TileArea &seen, std::uint16_t *pixels,
                                       std::size_t rowLength)
{
    if (!m_formats.halfFloatTransfers) {
        readDirectly(target, seen, pixels, rowLength);
        return;
    }
    const std::size_t row = seen.width * tileComponents;
    m_halfFloats.resize(row * seen.height);
    readPixels(target, static_cast<std::int32_t>(seen.width), static_cast<std::int32_t>(seen.height), GL_RGB,
               GL_HALF_FLOAT, m_halfFloats.data());
    for (std::size_t y = 0; y < seen.height; ++y) {
        convertFromHalfFloats(m_halfFloats.data() + y * row, row, pixels + y * rowLength * tileComponents);
    }
}

template <typename T>
void TileTransfer<T>::download(const FramebufferObject &target, const TileArea &area, T *image)
{
    if (area.x >= m_width || area.y >= m_height) {
        return;
    }
    const TileArea seen{area.x, area.y, std::min(area.width, m_width - area.x),
                        std::min(area.height, m_height - area.y)};
    if (m_components == tileComponents) {
        read(target, seen, image + (seen.y * m_width + seen.x) * tileComponents, m_width);
        return;
    }
    m_tile.resize(seen.width * seen.height * tileComponents);
    read(target, seen, m_tile.data(), seen.width);
    pasteTile(m_tile, seen, image, m_width, m_height, m_components);
}

template class TileTransfer<std::uint8_t>;
template class TileTransfer<std::uint16_t>;

} // namespace grisal::graphics
