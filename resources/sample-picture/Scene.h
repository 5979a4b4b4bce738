// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace grisal::sample
{

/// Paints the sample image: R, G, B per pixel, rows from top to bottom, 16-bit samples. The same size gives the same
/// samples. The sizes are in pixels, at least 1.
///
/// The lowest twentieth of the height contains a grey ramp from black to white without noise: continuous in its upper
/// half, in eleven steps in its lower half.
std::vector<std::uint16_t> paintScene(int width, int height);

/// Converts 16-bit samples to bytes, rounded to nearest.
std::vector<std::uint8_t> asBytes(const std::vector<std::uint16_t> &words);

/// The first row of the ramp.
int rampTop(int height);

/// The grey of the ramp in a column, 0 to 1.
double rampGrey(int x, int width, bool stepped);

} // namespace grisal::sample
