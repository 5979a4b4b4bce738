// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// The grain that is shown in the strip below the grain curve: grey images, one for each blur radius, that look like
/// the grain filter when they are drawn over a ramp from black to white with Qt's overlay mode. Independent of GL and
/// Qt.
namespace grisal::grain
{

using Bytes = std::vector<std::uint8_t>;

constexpr int noiseSide = 512; ///< width and height of the noise map
constexpr int tileWidth = 400;
constexpr int tileHeight = 60;

/// The blur radii in pixels for which there are tiles.
constexpr std::array<double, 7> tileRadii{0.0, 0.5, 1.0, 1.5, 2.0, 2.5, 3.0};

/// The red channel of a noise map (R, G, B interleaved, noiseSide x noiseSide), blurred by `radius` pixels like
/// GaussianBlurFilter with 8-bit targets: see there for taps and weights. Edges are mirrored.
Bytes blurredNoise(const Bytes &noiseMap, double radius);

/// The greys of the tile for a radius, tileWidth x tileHeight, row by row.
///
/// GrainFilter turns a grey d with the noise m into k * k * d * (d + 2 * k * m * (1 - d)), k = 255 * 0.0039. The
/// overlay of the strip turns it into 2 * s * d for d below 0.5 and into 1 - 2 * (1 - d) * (1 - s) above, where s is
/// the grey of the tile. One value of s makes both equal, but it depends on d, which depends on the column and on the
/// width of the strip. The tile contains the value with the least squared error over the possible widths of the strip.
/// The noise is mapped to the pixels as in an image.
Bytes grainTile(const Bytes &noiseMap, double radius);

} // namespace grisal::grain
