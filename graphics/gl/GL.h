// SPDX-License-Identifier: MIT
#pragma once

// The one way to OpenGL for this code base: GLEW has to come before every other GL header.
// clang-format off
#include <GL/glew.h>
#include <GL/glu.h>
// clang-format on

#include <cstdint>

namespace grisal::graphics
{

/// Result of initialiseGlEntryPoints().
enum class GlStart {
    Ready,     ///< OpenGL 2.1 with framebuffer objects is there
    NoContext, ///< no context is current, or it gives no entry points
    TooOld,    ///< the context is older than OpenGL 2.1 or lacks framebuffer objects
};

/// Loads the GL entry points for the current context. May be called again for the same context.
/// A GLEW that finds no GLX display (Wayland, EGL) counts as ready if the entry points were found all the same.
GlStart initialiseGlEntryPoints();

/// Texture units, fixed for the whole engine.
namespace unit
{
constexpr std::uint32_t source = 0;  ///< MainTexture of every filter
constexpr std::uint32_t extra = 1;   ///< NoiseMap, Curve or OverlayTexture
constexpr std::uint32_t weights = 2; ///< Weights of the grain
} // namespace unit

} // namespace grisal::graphics
