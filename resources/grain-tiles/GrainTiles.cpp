// SPDX-License-Identifier: MIT
#include "resources/grain-tiles/GrainTiles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace grisal::grain
{

namespace
{

constexpr double nearlyOne = 255 * 0.0039; // the filter uses 0.0039 for 1/255

// The strip is slightly narrower than its panel of 300 to 400 pixels. The maximum is larger than the width of a tile:
// otherwise the last columns would be computed for white only and would be visible on a ramp that is grey there.
constexpr int narrowestStrip = 280;
constexpr int widestStrip = 420;

std::uint8_t toByte(double value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
}

std::size_t texel(int x, int y)
{
    return static_cast<std::size_t>(y) * noiseSide + static_cast<std::size_t>(x);
}

int mirrored(int i)
{
    const int beyond = i < 0 ? -1 - i : i;
    return beyond < noiseSide ? beyond : 2 * noiseSide - 1 - beyond;
}

std::vector<double> tapsOf(double radius)
{
    const int half = 2 * static_cast<int>(std::ceil(radius));
    std::vector<double> taps;
    double sum = 0;
    for (int x = -half; x <= half; ++x) {
        taps.push_back(std::exp(-x * x / (1.141 * radius)));
        sum += taps.back();
    }
    for (double &tap : taps) {
        tap /= sum;
    }
    return taps;
}

Bytes blurredAlong(const Bytes &noise, const std::vector<double> &taps, bool alongX)
{
    const int half = static_cast<int>(taps.size()) / 2;
    Bytes result(noise.size());
    for (int y = 0; y < noiseSide; ++y) {
        for (int x = 0; x < noiseSide; ++x) {
            double sum = 0;
            int offset = -half;
            for (const double tap : taps) {
                sum += tap * noise[alongX ? texel(mirrored(x + offset), y) : texel(x, mirrored(y + offset))];
                ++offset;
            }
            result[texel(x, y)] = toByte(sum / 255);
        }
    }
    return result;
}

/// The result of the filter for a grey and a noise value.
double filtered(double grey, double noise)
{
    return nearlyOne * nearlyOne * grey * (grey + 2 * nearlyOne * noise * (1 - grey));
}

/// The grey of the tile in one column: atBlackNoise + slope * noise.
struct Column {
    double atBlackNoise = 0;
    double slope = 0;
};

// The overlay is rest + gain * s and the result of the filter is black + (white - black) * noise, so two linear
// functions are fitted.
Column columnAt(int x)
{
    double gains = 0;
    Column column;
    for (int width = std::max(narrowestStrip, x + 1); width <= widestStrip; ++width) {
        const double grey = (x + 0.5) / width;
        const double rest = std::max(0.0, 2 * grey - 1);
        const double gain = 2 * std::min(grey, 1 - grey);
        const double black = filtered(grey, 0);
        const double white = filtered(grey, 1);
        gains += gain * gain;
        column.atBlackNoise += gain * (black - rest);
        column.slope += gain * (white - black);
    }
    return {column.atBlackNoise / gains, column.slope / gains};
}

/// The row or column of the noise map for a row or column of an image.
int noiseUnder(int pixel)
{
    return static_cast<int>((pixel + 0.5) * 0.0019 * noiseSide);
}

} // namespace

Bytes blurredNoise(const Bytes &noiseMap, double radius)
{
    Bytes red(static_cast<std::size_t>(noiseSide) * noiseSide);
    for (std::size_t i = 0; i < red.size(); ++i) {
        red[i] = noiseMap.at(3 * i);
    }
    if (radius <= 0) {
        return red;
    }
    const std::vector<double> taps = tapsOf(radius);
    return blurredAlong(blurredAlong(red, taps, true), taps, false);
}

Bytes grainTile(const Bytes &noiseMap, double radius)
{
    const Bytes noise = blurredNoise(noiseMap, radius);
    std::vector<Column> columns;
    columns.reserve(tileWidth);
    for (int x = 0; x < tileWidth; ++x) {
        columns.push_back(columnAt(x));
    }
    Bytes tile;
    for (int y = 0; y < tileHeight; ++y) {
        int x = 0;
        for (const Column &column : columns) {
            const double value = noise[texel(noiseUnder(x), noiseUnder(y))] / 255.0;
            tile.push_back(toByte(column.atBlackNoise + column.slope * value));
            ++x;
        }
    }
    return tile;
}

} // namespace grisal::grain
