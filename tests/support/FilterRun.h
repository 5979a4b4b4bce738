// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IFilter.h"
#include "tests/support/Pictures.h"

namespace grisal::test
{

/// Array in, filter, array out: one pass over float pixels of 3 components, the result with alpha in 4, unrounded and
/// unclamped. Sets the filter's size, and expects of the pass that it leaves no program, no framebuffer and no source
/// texture bound.
FloatPixels runFilter(graphics::IFilter &filter, const FloatPixels &source);

/// The same with bytes: RGB8 in, RGB8 out.
BytePixels runFilter(graphics::IFilter &filter, const BytePixels &source);

/// The pixels of a target of which the size and three components are known.
BytePixels readBytes(const graphics::FramebufferObject &target, int width, int height);

/// The pixels of a 2D texture, three components.
BytePixels readTexture(GLuint texture, int width, int height);

} // namespace grisal::test
