// SPDX-License-Identifier: MIT
#include "resources/sample-picture/Scene.h"
#include "resources/sample-picture/Landscape.h"
#include "resources/sample-picture/Noise.h"
#include "resources/sample-picture/People.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace grisal::sample
{

namespace
{

constexpr double white = 65535;

std::uint16_t word(double level)
{
    return static_cast<std::uint16_t>(std::lround(std::clamp(level, 0.0, 1.0) * white));
}

// Noise like that of a camera: nearly the same strength in dark and light areas, slightly different in each channel.
Colour withGrain(const Colour &colour, int x, int y)
{
    constexpr double strength = 0.022;
    const double common = hashed(x, y, 301) - hashed(x, y, 302);
    const auto grain = [&](std::uint32_t seed) { return strength * (common + 0.5 * (hashed(x, y, seed) - 0.5)); };
    return colour + Colour{grain(303), grain(304), grain(305)};
}

Colour pictureAt(int x, int y, int width, int height)
{
    const double unit = 1.0 / height;
    const Point point{(x + 0.5) * unit, (y + 0.5) * unit};
    const double right = width * unit;
    Colour colour = landscapeAt(point, right);
    colour = withColourBoard(colour, point, right);
    colour = withPeople(colour, point, right);
    return withGrain(colour, x, y);
}

Colour rampAt(int x, int y, int width, int height)
{
    const bool stepped = y - rampTop(height) >= (height - rampTop(height)) / 2;
    const double grey = rampGrey(x, width, stepped);
    return {grey, grey, grey};
}

} // namespace

int rampTop(int height)
{
    return height - height / 20;
}

double rampGrey(int x, int width, bool stepped)
{
    if (stepped) {
        constexpr int steps = 11;
        return std::floor(static_cast<double>(x) * steps / width) / (steps - 1);
    }
    return width > 1 ? static_cast<double>(x) / (width - 1) : 0;
}

std::vector<std::uint16_t> paintScene(int width, int height)
{
    std::vector<std::uint16_t> words;
    words.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool ramp = y >= rampTop(height);
            const Colour colour = ramp ? rampAt(x, y, width, height) : pictureAt(x, y, width, height);
            words.insert(words.end(), {word(colour.r), word(colour.g), word(colour.b)});
        }
    }
    return words;
}

std::vector<std::uint8_t> asBytes(const std::vector<std::uint16_t> &words)
{
    std::vector<std::uint8_t> bytes(words.size());
    std::transform(words.begin(), words.end(), bytes.begin(),
                   [](std::uint16_t value) { return static_cast<std::uint8_t>((value + 128) / 257); });
    return bytes;
}

} // namespace grisal::sample
