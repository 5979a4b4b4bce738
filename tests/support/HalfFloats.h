// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

namespace grisal::test
{

/// A float within the range of half floats after it was stored as one by an OpenGL driver that truncates, like Mesa's
/// software drivers.
inline float cutToHalfFloat(float value)
{
    constexpr float smallestNormal = 1.0F / 16384;
    if (std::abs(value) < smallestNormal) {
        constexpr float subnormalStep = 1.0F / 16777216;
        return std::trunc(value / subnormalStep) * subnormalStep;
    }
    return std::bit_cast<float>(std::bit_cast<std::uint32_t>(value) & ~0x1FFFU);
}

/// A float 0..1 rounded to the nearest half float, ties to even.
inline float nearestHalfFloat(float value)
{
    const float below = cutToHalfFloat(value);
    constexpr float smallestNormal = 1.0F / 16384;
    const float step = value < smallestNormal ? 1.0F / 16777216 : std::ldexp(1.0F, std::ilogb(value) - 10);
    const float rest = value - below;
    const bool odd = std::fmod(below / step, 2.0F) != 0;
    return rest > step / 2 || (rest == step / 2 && odd) ? below + step : below;
}

/// A 16-bit sample after it was uploaded as a half float and read back.
inline std::uint16_t throughHalfFloat(std::uint16_t sample)
{
    const float half = nearestHalfFloat(static_cast<float>(sample) / 65535.0F);
    return static_cast<std::uint16_t>(std::lround(half * 65535.0F));
}

/// The largest distance between adjacent half floats in 0..1, in units of 16-bit samples.
constexpr double halfFloatStep = 32;

} // namespace grisal::test
