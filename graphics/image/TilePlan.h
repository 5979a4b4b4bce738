// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::graphics
{

/// How one side of an image is padded and divided into tiles, in pixels.
struct TileSide {
    std::uint32_t padded = 0;
    std::uint32_t tile = 0;

    bool operator==(const TileSide &) const = default;
};

/// Plans one side. As long as the padded size is not a multiple of 4, its remainder modulo 4 is added to it: 1001
/// becomes 1004, and 1003 becomes 1008. A side of more than 2048 pixels, without padding, is divided into four tiles;
/// any other side is one tile. Saved images depend on this rule.
TileSide planTileSide(std::uint32_t size);

/// Returns the number of tiles along one side: 1 or 4 with the plan above, never 0.
std::uint32_t tileCount(const TileSide &side);

} // namespace grisal::graphics
