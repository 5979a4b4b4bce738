// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::graphics
{

/// Describes a pixel buffer that someone else owns: interleaved pixels, rows from top to bottom without padding.
/// Whether a pixel has 3 or 4 components and whether they are bytes or 16-bit words travels beside the buffer.
struct ImageBuffer {
    void *pixels = nullptr;   ///< first component of the top left pixel; not owned
    std::uint32_t width = 0;  ///< in pixels
    std::uint32_t height = 0; ///< in pixels
    std::uint32_t layers = 1; ///< always 1
    std::uint32_t frames = 1; ///< always 1
};

} // namespace grisal::graphics
