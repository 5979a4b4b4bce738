// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/TileArea.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace grisal::graphics
{

/// The colour components that a tile has per pixel, whatever its picture has.
constexpr std::size_t tileComponents = 3;

/// Cuts the area out of a picture of width x height pixels with `components` interleaved components each; rows follow
/// each other without padding. `tile` gets area.width * area.height * 3 values; where the area reaches beyond the
/// picture it gets zeros.
template <typename T>
void cutTile(const T *picture, std::size_t width, std::size_t height, std::size_t components, const TileArea &area,
             std::vector<T> &tile)
{
    tile.assign(area.width * area.height * tileComponents, T{});
    const std::size_t columns = area.x < width ? std::min(area.width, width - area.x) : 0;
    const std::size_t rows = area.y < height ? std::min(area.height, height - area.y) : 0;
    for (std::size_t row = 0; row < rows; ++row) {
        const T *from = picture + ((area.y + row) * width + area.x) * components;
        T *to = tile.data() + row * area.width * tileComponents;
        for (std::size_t column = 0; column < columns; ++column) {
            std::copy_n(from + column * components, tileComponents, to + column * tileComponents);
        }
    }
}

/// Puts a tile back where it was cut, the other way round; what reaches beyond the picture is dropped, a fourth
/// component of the picture stays.
template <typename T>
void placeTile(const std::vector<T> &tile, const TileArea &area, T *picture, std::size_t width, std::size_t height,
               std::size_t components)
{
    const std::size_t columns = area.x < width ? std::min(area.width, width - area.x) : 0;
    const std::size_t rows = area.y < height ? std::min(area.height, height - area.y) : 0;
    for (std::size_t row = 0; row < rows; ++row) {
        const T *from = tile.data() + row * area.width * tileComponents;
        T *to = picture + ((area.y + row) * width + area.x) * components;
        for (std::size_t column = 0; column < columns; ++column) {
            std::copy_n(from + column * tileComponents, tileComponents, to + column * components);
        }
    }
}

} // namespace grisal::graphics
