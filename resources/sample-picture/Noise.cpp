// SPDX-License-Identifier: MIT
#include "resources/sample-picture/Noise.h"
#include "resources/sample-picture/Paint.h"

#include <cmath>

namespace grisal::sample
{

double hashed(std::int64_t x, std::int64_t y, std::uint32_t seed)
{
    std::uint64_t bits = static_cast<std::uint64_t>(x) * 0x9e3779b97f4a7c15U;
    bits ^= static_cast<std::uint64_t>(y) * 0xc2b2ae3d27d4eb4fU + seed;
    bits ^= bits >> 31;
    bits *= 0x94d049bb133111ebU;
    bits ^= bits >> 29;
    bits *= 0xbf58476d1ce4e5b9U;
    return static_cast<double>(bits >> 40) / static_cast<double>((1U << 24) - 1);
}

double smoothNoise(double x, double y, std::uint32_t seed)
{
    const auto column = static_cast<std::int64_t>(std::floor(x));
    const auto row = static_cast<std::int64_t>(std::floor(y));
    const double right = softStep(0, 1, x - static_cast<double>(column));
    const double down = softStep(0, 1, y - static_cast<double>(row));
    const double top = std::lerp(hashed(column, row, seed), hashed(column + 1, row, seed), right);
    const double bottom = std::lerp(hashed(column, row + 1, seed), hashed(column + 1, row + 1, seed), right);
    return std::lerp(top, bottom, down);
}

double cloudNoise(double x, double y, int octaves, std::uint32_t seed)
{
    double sum = 0;
    double strength = 0.5;
    double total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * smoothNoise(x, y, seed + static_cast<std::uint32_t>(i));
        total += strength;
        strength /= 2;
        x *= 2.03;
        y *= 2.03;
    }
    return sum / total;
}

Leaf leafAt(double x, double y, std::uint32_t seed)
{
    const auto column = static_cast<std::int64_t>(std::floor(x));
    const auto row = static_cast<std::int64_t>(std::floor(y));
    Leaf nearest{8, 0, 0};
    for (std::int64_t i = column - 1; i <= column + 1; ++i) {
        for (std::int64_t j = row - 1; j <= row + 1; ++j) {
            const double dx = x - static_cast<double>(i) - hashed(i, j, seed);
            const double dy = y - static_cast<double>(j) - hashed(i, j, seed + 1);
            const double angle = hashed(i, j, seed + 2) * 3.14159;
            const double along = dx * std::cos(angle) + dy * std::sin(angle);
            const double across = dy * std::cos(angle) - dx * std::sin(angle);
            const double distance = std::hypot(along * 0.75, across * 1.4);
            if (distance < nearest.distance) {
                nearest = {distance, hashed(i, j, seed + 3), -dy};
            }
        }
    }
    return nearest;
}

} // namespace grisal::sample
