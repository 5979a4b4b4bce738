// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace grisal::sample
{

/// Paints the sample picture: R, G, B per pixel, rows from top to bottom, 16-bit words. The same sizes give the same
/// words. The sizes are in pixels, at least 1.
///
/// Over the last twentieth of the height runs a grey ramp from black to white, free of noise: in its upper half
/// continuous, in its lower half in eleven steps.
std::vector<std::uint16_t> paintScene(int width, int height);

/// The words as bytes, rounded to nearest.
std::vector<std::uint8_t> asBytes(const std::vector<std::uint16_t> &words);

/// The first row of the ramp.
int rampTop(int height);

/// The ramp's grey at a column, 0 to 1.
double rampGrey(int x, int width, bool stepped);

} // namespace grisal::sample
