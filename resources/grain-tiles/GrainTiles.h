// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// The grain that the strip under the grain curve shows: pictures of grey, one for each blur radius, that look like the
/// grain filter when they are laid over a ramp from black to white with the usual overlay. No GL, no toolkit.
namespace grisal::grain
{

using Bytes = std::vector<std::uint8_t>;

constexpr int noiseSide = 512; ///< width and height of the noise map
constexpr int tileWidth = 400;
constexpr int tileHeight = 60;

/// Blur radii in pixels that have a tile.
constexpr std::array<double, 7> tileRadii{0.0, 0.5, 1.0, 1.5, 2.0, 2.5, 3.0};

/// The red of a noise map (R, G, B interleaved, noiseSide x noiseSide), blurred by `radius` pixels as
/// GaussianBlurFilter does it between targets of 8 bits: see there for taps and weights. Edges are mirrored.
Bytes blurredNoise(const Bytes &noiseMap, double radius);

/// Greys of the tile of that radius, tileWidth x tileHeight, row after row.
///
/// GrainFilter turns a grey d under the noise m into k * k * d * (d + 2 * k * m * (1 - d)), k = 255 * 0.0039. The
/// strip's overlay turns it into 2 * s * d below the middle and into 1 - 2 * (1 - d) * (1 - s) above it, s being the
/// tile's grey. There is one s that makes both alike, but it depends on d, which depends on the column and on the
/// strip's width. The tile has the one with the least squared error over the widths that the strip may have. The noise
/// lies on the pixels as it does in a picture.
Bytes grainTile(const Bytes &noiseMap, double radius);

} // namespace grisal::grain
