// SPDX-License-Identifier: MIT
#include "tests/support/SyntheticPhoto.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace grisal::test
{

namespace
{

constexpr double white = 65535;

/// Between -0.5 and 0.5, a hash of the pixel and the channel.
double noise(int x, int y, int c)
{
    std::uint32_t hash = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U ^
                         static_cast<std::uint32_t>(c) * 0xC2B2AE3DU;
    hash = (hash ^ hash >> 15U) * 0x2C1B3C6DU;
    hash = (hash ^ hash >> 12U) * 0x297A2D39U;
    return static_cast<double>(hash ^ hash >> 15U) / 4294967295.0 - 0.5;
}

/// A wave along a diagonal, 0 to 1; each channel has its own length and direction.
double colour(double u, double v, int c)
{
    const double phase = u * (1.3 + 0.7 * c) + v * (0.9 - 0.4 * c) + 0.3 * c;
    return 0.5 + 0.5 * std::sin(2 * std::numbers::pi * phase);
}

std::uint16_t sample(double value)
{
    return static_cast<std::uint16_t>(std::lround(white * std::clamp(value, 0.0, 1.0)));
}

} // namespace

Samples16Image syntheticPhoto(int width, int height)
{
    constexpr double strengthOfNoise = 0.04;
    const int rampTop = height - height / 20;
    Samples16Image picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = x / std::max(1.0, width - 1.0);
            const double v = static_cast<double>(y) / height;
            const double light = 0.55 + 0.45 * std::sin(3 * u + 5 * v);
            for (int c = 0; c < picture.components; ++c) {
                const double seen = light * colour(u, v, c) + strengthOfNoise * noise(x, y, c);
                picture.at(x, y, c) = sample(y < rampTop ? seen : u);
            }
        }
    }
    return picture;
}

BytePixels asBytes(const Samples16Image &picture)
{
    BytePixels bytes(picture.width, picture.height, picture.components);
    std::transform(picture.values.begin(), picture.values.end(), bytes.values.begin(),
                   [](std::uint16_t value) { return static_cast<std::uint8_t>((value + 128) / 257); });
    return bytes;
}

} // namespace grisal::test
