// SPDX-License-Identifier: MIT
#include "graphics/render/HalfWords.h"

#include <array>
#include <cmath>

namespace grisal::graphics
{

namespace
{

constexpr std::uint16_t one = 0x3c00;
constexpr std::uint16_t infinity = 0x7c00;
constexpr int mantissaBits = 10;
constexpr int bias = 15;
constexpr int largestWord = 65535;

/// The value of a half float between 0 and 1, by its bits.
double valueOf(std::uint16_t half)
{
    const int exponent = half >> mantissaBits;
    const int mantissa = half & ((1 << mantissaBits) - 1);
    return exponent == 0 ? std::ldexp(mantissa, 1 - bias - mantissaBits)
                         : std::ldexp(mantissa + (1 << mantissaBits), exponent - bias - mantissaBits);
}

/// The words of the halves from 0 to 1; small enough for the processor's first cache.
const std::array<std::uint16_t, one + 1> &table()
{
    static const auto words = [] {
        std::array<std::uint16_t, one + 1> made{};
        for (std::uint16_t half = 0; half <= one; ++half) {
            // The product is rounded to a float first, as drivers have it.
            const float word = static_cast<float>(valueOf(half)) * largestWord;
            made[half] = static_cast<std::uint16_t>(std::nearbyint(word));
        }
        return made;
    }();
    return words;
}

std::uint16_t wordOf(std::uint16_t half, const std::uint16_t *words)
{
    if (half <= one) {
        return words[half];
    }
    return half > infinity ? 0 : largestWord;
}

} // namespace

std::uint16_t wordOfHalf(std::uint16_t half)
{
    return wordOf(half, table().data());
}

void wordsOfHalves(const std::uint16_t *halves, std::size_t count, std::uint16_t *words)
{
    const std::uint16_t *known = table().data();
    for (std::size_t i = 0; i < count; ++i) {
        words[i] = wordOf(halves[i], known);
    }
}

} // namespace grisal::graphics
