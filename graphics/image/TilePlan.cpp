// SPDX-License-Identifier: MIT
#include "graphics/image/TilePlan.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr std::uint32_t largestUntiledSide = 2048;

} // namespace

TileSide planTileSide(std::uint32_t size)
{
    std::uint32_t padded = size;
    while (padded % 4 != 0) {
        padded += padded % 4;
    }
    return {padded, size > largestUntiledSide ? padded / 4 : padded};
}

std::uint32_t tileCount(const TileSide &side)
{
    return side.tile == 0 ? 1 : std::max<std::uint32_t>(side.padded / side.tile, 1);
}

} // namespace grisal::graphics
