// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace grisal::graphics
{

constexpr int noiseMapSide = 512;   ///< width and height of the noise map in texels
constexpr int noiseMapChannels = 3; ///< R, G, B; the grain reads only R

/// Reads a headerless file of 8-bit samples: R, G, B interleaved, row after row. A number of channels other than 3 and
/// a file of the wrong size are logged as warnings. The result has at least three samples per texel; those that the
/// file lacks are 0.
std::vector<std::uint8_t> readNoiseSamples(const QString &path, int width, int height, int channels);

/// Reads the noise map in the Qt resources, 512 x 512 texels.
std::vector<std::uint8_t> noiseMapSamples();

} // namespace grisal::graphics
