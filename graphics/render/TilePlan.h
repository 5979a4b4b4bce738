// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::graphics
{

/// How one side of a picture is padded and cut, in pixels.
struct TileSide {
    std::uint32_t padded = 0;
    std::uint32_t tile = 0;

    bool operator==(const TileSide &) const = default;
};

/// Plans one side: while the padded size is no multiple of 4 its remainder by 4 is added to it, so that 1001 becomes
/// 1004 and 1003 becomes 1008. A side of more than 2048 pixels, padding not counted, is cut into four tiles, any
/// other is one. Saved pictures depend on this rule.
TileSide planTileSide(std::uint32_t size);

/// Tiles along one side: 1 or 4 with the plan above, never 0.
std::uint32_t tileCount(const TileSide &side);

} // namespace grisal::graphics
