// SPDX-License-Identifier: MIT
#include "bench/Baselines.h"

#include "graphics/look/FilterParameters.h"

namespace grisal::bench
{

using namespace graphics;

namespace
{

std::int32_t length(std::uint32_t side)
{
    return static_cast<std::int32_t>(side);
}

} // namespace

FinalPasses::FinalPasses(std::uint32_t width, std::uint32_t height, GLenum internalFormat, GLenum type)
    : m_horizontal(planTileSide(width)), m_vertical(planTileSide(height)),
      m_tile(length(m_horizontal.tile), length(m_vertical.tile), GL_RGB, internalFormat, type),
      m_tileMask(length(m_horizontal.tile), length(m_vertical.tile), GL_RED, GL_R32F, GL_FLOAT),
      m_first(length(m_horizontal.tile), length(m_vertical.tile), GL_RGB, internalFormat, type),
      m_second(length(m_horizontal.tile), length(m_vertical.tile), GL_RGB, internalFormat, type)
{
    FilterParameters parameters;
    parameters.get<GrainFilter>().weights.fill(0.5F);
    m_filters.setParameters(parameters);
    m_filters.get<GrainFilter>().setSigma(1.5F);
    m_filters.setSize(length(m_horizontal.tile), length(m_vertical.tile));
    m_overlay.width = length(m_horizontal.tile);
    m_overlay.height = length(m_vertical.tile);
    m_overlay.overlayTexture = m_tileMask.record().texture;
    m_vignette.parameters = m_filters.get<VignetteFilter>().parameters;
    m_vignette.width = length(m_horizontal.padded);
    m_vignette.height = length(m_vertical.padded);
}

void FinalPasses::run()
{
    glEnable(GL_TEXTURE_2D);
    const std::uint32_t tiles = tileCount(m_horizontal) * tileCount(m_vertical);
    for (std::uint32_t tile = 0; tile < tiles; ++tile) {
        m_vignette.applyPart(0, 0, m_overlay.width, m_overlay.height, m_tileMask.record());
        m_filters.get<MixerFilter>().apply(m_tile.record().texture, m_first.record());
        m_filters.get<CurveFilter>().apply(m_first.record().texture, m_second.record());
        m_filters.get<HalfToneFilter>().apply(m_second.record().texture, m_first.record());
        m_filters.get<GrainFilter>().apply(m_first.record().texture, m_second.record());
        m_overlay.apply(m_second.record().texture, m_first.record());
    }
    glFinish();
}

template <typename T>
Transfers<T>::Transfers(std::uint32_t width, std::uint32_t height, GLenum internalFormat, GLenum type)
    : m_horizontal(planTileSide(width)), m_vertical(planTileSide(height)), m_type(type),
      m_target(length(m_horizontal.tile), length(m_vertical.tile), GL_RGB, internalFormat, type),
      m_pixels(std::size_t{width} * height * 3, 100)
{
}

template <typename T>
void Transfers<T>::run()
{
    const std::int32_t width = length(m_horizontal.tile);
    const std::int32_t height = length(m_vertical.tile);
    const std::size_t tileSize = std::size_t{m_horizontal.tile} * m_vertical.tile * 3;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (std::size_t at = 0; at + tileSize <= m_pixels.size(); at += tileSize) {
        glBindTexture(GL_TEXTURE_2D, m_target.record().texture);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, width, height, GL_RGB, m_type, m_pixels.data() + at);
        glBindTexture(GL_TEXTURE_2D, 0);
        readPixels(m_target.record(), width, height, GL_RGB, m_type, m_pixels.data() + at);
    }
    glFinish();
}

template class Transfers<std::uint8_t>;
template class Transfers<std::uint16_t>;

} // namespace grisal::bench
