// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IFilter.h"
#include "tests/support/Pictures.h"

namespace grisal::test
{

/// Runs one pass over float pixels of 3 components and returns the result with 4, including alpha, neither rounded nor
/// clamped. Sets the size of the filter, and expects the pass to leave no program, framebuffer or source texture bound.
FloatPixels runFilter(graphics::IFilter &filter, const FloatPixels &source);

/// The same for bytes: RGB8 in, RGB8 out.
BytePixels runFilter(graphics::IFilter &filter, const BytePixels &source);

/// The pixels of a render target of a known size, three components.
BytePixels readBytes(const graphics::FramebufferObject &target, int width, int height);

/// The pixels of a 2D texture, three components.
BytePixels readTexture(GLuint texture, int width, int height);

} // namespace grisal::test
