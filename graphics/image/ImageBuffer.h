// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::graphics
{

/// Describes a pixel buffer that it does not own: interleaved pixels, rows from top to bottom without padding. The
/// number of components per pixel (3 or 4) and the size of a sample (8 or 16 bits) are passed separately.
struct ImageBuffer {
    void *pixels = nullptr;   ///< first component of the top left pixel; not owned
    std::uint32_t width = 0;  ///< in pixels
    std::uint32_t height = 0; ///< in pixels
    std::uint32_t layers = 1; ///< always 1
    std::uint32_t frames = 1; ///< always 1
};

} // namespace grisal::graphics
