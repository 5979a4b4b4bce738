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
constexpr std::size_t halvesToOne = 0x3c01; // one among them
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
const std::array<std::uint16_t, halvesToOne> &table()
{
    static const auto words = [] {
        std::array<std::uint16_t, halvesToOne> made{};
        std::uint16_t half = 0;
        for (std::uint16_t &word : made) {
            // The product is rounded to a float first, as drivers have it.
            word = static_cast<std::uint16_t>(std::nearbyint(static_cast<float>(valueOf(half++)) * largestWord));
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
