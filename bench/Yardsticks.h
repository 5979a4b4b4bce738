// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterSet.h"
#include "graphics/filters/FinalVignetteFilter.h"
#include "graphics/filters/OverlayFilter.h"
#include "graphics/gl/Framebuffers.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/TilePlan.h"

#include <cstdint>
#include <vector>

namespace grisal::bench
{

/// The bare passes: the shaders of a final render with all five filters, the mask's among them, over textures that
/// are there already, tile by tile, as the render has them.
class FinalPasses
{
public:
    FinalPasses(std::uint32_t width, std::uint32_t height, GLenum internalFormat, GLenum type);

    /// Runs them all and waits for their end.
    void run();

private:
    graphics::TileSide m_horizontal;
    graphics::TileSide m_vertical;
    graphics::RenderTarget m_tile;
    graphics::RenderTarget m_tileMask;
    graphics::RenderTarget m_first;
    graphics::RenderTarget m_second;
    graphics::FilterSet m_filters;
    graphics::OverlayFilter m_overlay;
    graphics::FinalVignetteFilter m_vignette;
};

/// The bare transfers: every byte of a picture into a texture that is there already, and out of a target, once each.
template <typename T>
class Transfers
{
public:
    Transfers(std::uint32_t width, std::uint32_t height, GLenum internalFormat, GLenum type);

    void run();

private:
    graphics::TileSide m_horizontal;
    graphics::TileSide m_vertical;
    GLenum m_type;
    graphics::RenderTarget m_target;
    std::vector<T> m_pixels;
};

} // namespace grisal::bench
