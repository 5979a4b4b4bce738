// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace grisal::graphics
{

/// A rectangle of an image, in pixels; y counts from the top row.
struct TileArea {
    std::size_t x = 0;
    std::size_t y = 0;
    std::size_t width = 0;
    std::size_t height = 0;
};

} // namespace grisal::graphics
