// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterSet.h"
#include "graphics/filters/FinalVignetteFilter.h"
#include "graphics/filters/OverlayFilter.h"
#include "graphics/gl/Framebuffers.h"
#include "graphics/gl/Textures.h"
#include "graphics/image/TilePlan.h"

#include <cstdint>
#include <vector>

namespace grisal::bench
{

/// The bare passes: the shaders of a final render with all five filters, including those of the mask, on existing
/// textures, tile by tile, in the order of the render.
class FinalPasses
{
public:
    FinalPasses(std::uint32_t width, std::uint32_t height, GLenum internalFormat, GLenum type);

    /// Runs all passes and waits until they are finished.
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

/// The bare transfers: every byte of an image into an existing texture and back from a render target, once each.
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
