// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::sample
{

/// A pseudo-random number from 0 to 1 that depends only on position and seed.
double hashed(std::int64_t x, std::int64_t y, std::uint32_t seed);

/// Smooth noise from 0 to 1 with one bump per unit.
double smoothNoise(double x, double y, std::uint32_t seed);

/// Noise from 0 to 1 with detail at every scale: `octaves` layers, each with twice the frequency and half the
/// amplitude.
double cloudNoise(double x, double y, int octaves, std::uint32_t seed);

/// The leaf at a position.
struct Leaf {
    double distance = 0; ///< from the centre of the leaf, in units of the grid of leaves; less than about 1
    double shade = 0;    ///< brightness of the leaf, 0 to 1
    double lift = 0;     ///< height of the position on the leaf, about -1 to 1
};

/// Irregularly scattered leaves, one per unit square.
Leaf leafAt(double x, double y, std::uint32_t seed);

} // namespace grisal::sample
