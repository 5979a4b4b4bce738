// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/TileArea.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace grisal::graphics
{

/// The number of components per pixel of a tile: R, G, B, even if the image has alpha.
constexpr std::size_t tileComponents = 3;

/// Copies an area of an image into `tile`. The image has width x height pixels with `components` interleaved components
/// each, and rows without padding. `tile` is resized to area.width * area.height * 3 values; those outside the image
/// are 0.
template <typename T>
void copyTile(const T *picture, std::size_t width, std::size_t height, std::size_t components, const TileArea &area,
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

/// The inverse of copyTile(): copies a tile into an area of the image. Pixels outside the image are dropped; a fourth
/// component of the image stays unchanged.
template <typename T>
void pasteTile(const std::vector<T> &tile, const TileArea &area, T *picture, std::size_t width, std::size_t height,
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
