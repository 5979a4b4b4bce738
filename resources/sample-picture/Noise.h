// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::sample
{

/// A number from 0 to 1 that looks random and depends on the place and the seed alone.
double hashed(std::int64_t x, std::int64_t y, std::uint32_t seed);

/// Soft noise from 0 to 1 with one bump per unit.
double smoothNoise(double x, double y, std::uint32_t seed);

/// Noise from 0 to 1 that is rough at every size: `octaves` layers, each twice as fine and half as strong.
double cloudNoise(double x, double y, int octaves, std::uint32_t seed);

/// The leaf that lies at a place.
struct Leaf {
    double distance = 0; ///< from the leaf's middle, in units of the grid of leaves; less than about 1
    double shade = 0;    ///< the leaf's own brightness, 0 to 1
    double lift = 0;     ///< how far up the leaf the place is, about -1 to 1
};

/// Leaves scattered without order, one per unit square.
Leaf leafAt(double x, double y, std::uint32_t seed);

} // namespace grisal::sample
