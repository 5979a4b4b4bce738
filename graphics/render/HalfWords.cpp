// SPDX-License-Identifier: MIT
#include "graphics/render/HalfWords.h"

#include <algorithm>
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
constexpr std::size_t wordCount = 65536;

/// The value of a half float between 0 and 1, by its bits.
double valueOf(std::uint16_t half)
{
    const int exponent = half >> mantissaBits;
    const int mantissa = half & ((1 << mantissaBits) - 1);
    return exponent == 0 ? std::ldexp(mantissa, 1 - bias - mantissaBits)
                         : std::ldexp(mantissa + (1 << mantissaBits), exponent - bias - mantissaBits);
}

/// The bits of the half float that is nearest to a value between 0 and 1.
std::uint16_t bitsOf(float value)
{
    constexpr int smallestExponent = 1 - bias;
    const int exponent = value > 0 ? std::max(std::ilogb(value), smallestExponent) : smallestExponent;
    // Where the rounding carries, it carries into the exponent, as it should.
    const auto mantissa = static_cast<int>(std::nearbyint(std::ldexp(value, mantissaBits - exponent)));
    return static_cast<std::uint16_t>(((exponent - smallestExponent) << mantissaBits) + mantissa);
}

const std::array<std::uint16_t, wordCount> &halfTable()
{
    static const auto made = [] {
        std::array<std::uint16_t, wordCount> table{};
        for (std::size_t word = 0; word < wordCount; ++word) {
            table[word] = bitsOf(static_cast<float>(word) / largestWord);
        }
        return table;
    }();
    return made;
}

/// The words of the halves from 0 to 1; small enough for the processor's first cache.
const std::array<std::uint16_t, halvesToOne> &wordTable()
{
    static const auto made = [] {
        std::array<std::uint16_t, halvesToOne> table{};
        std::uint16_t half = 0;
        for (std::uint16_t &word : table) {
            // The product is rounded to a float first, as drivers have it.
            word = static_cast<std::uint16_t>(std::nearbyint(static_cast<float>(valueOf(half++)) * largestWord));
        }
        return table;
    }();
    return made;
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
    return wordOf(half, wordTable().data());
}

std::uint16_t halfOfWord(std::uint16_t word)
{
    return halfTable()[word];
}

void halvesOfWords(const std::uint16_t *words, std::size_t count, std::uint16_t *halves)
{
    const std::uint16_t *known = halfTable().data();
    for (std::size_t i = 0; i < count; ++i) {
        halves[i] = known[words[i]];
    }
}

void wordsOfHalves(const std::uint16_t *halves, std::size_t count, std::uint16_t *words)
{
    const std::uint16_t *known = wordTable().data();
    for (std::size_t i = 0; i < count; ++i) {
        words[i] = wordOf(halves[i], known);
    }
}

} // namespace grisal::graphics
