// SPDX-License-Identifier: MIT
#pragma once

// OpenGL is included only through this header, because GLEW must precede every other OpenGL header.
// clang-format off
#include <GL/glew.h>
#include <GL/glu.h>
// clang-format on

#include <cstdint>

namespace grisal::graphics
{

/// Result of initialiseGlEntryPoints().
enum class GlStart {
    Ready,     ///< OpenGL 2.1 with framebuffer objects is available
    NoContext, ///< no context is current, or its entry points cannot be loaded
    TooOld,    ///< the context is older than OpenGL 2.1 or lacks framebuffer objects
};

/// Loads the OpenGL entry points for the current context. Repeated calls for the same context are allowed. If GLEW
/// finds no GLX display (Wayland, EGL), the result is still Ready as long as the entry points were found.
GlStart initialiseGlEntryPoints();

/// Texture units, the same in all filters.
namespace unit
{
constexpr std::uint32_t source = 0;  ///< MainTexture of every filter
constexpr std::uint32_t extra = 1;   ///< NoiseMap, Curve or OverlayTexture
constexpr std::uint32_t weights = 2; ///< Weights of the grain
} // namespace unit

} // namespace grisal::graphics
