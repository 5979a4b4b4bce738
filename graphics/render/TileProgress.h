// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace grisal::graphics
{

/// Called before a tile is rendered, with the number of the tile, counted from 1, and the number of tiles. If it makes
/// another OpenGL context current, it must make the context of the render current again before it returns.
using TileProgress = std::function<void(int tile, int tiles)>;

} // namespace grisal::graphics
