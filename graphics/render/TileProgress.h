// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace grisal::graphics
{

/// Is told, before a tile is rendered, which it is, counted from 1, and how many there are. It may leave another GL
/// context current only if it makes the render's own current again before it returns.
using TileProgress = std::function<void(int tile, int tiles)>;

} // namespace grisal::graphics
