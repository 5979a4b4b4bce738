// SPDX-License-Identifier: MIT
#pragma once

#include <qfloat16.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace grisal::graphics::cpu
{

constexpr float white = 255.0F; ///< of the filters' formulas

/// Limits a value to 0..1; NaN becomes 0.
inline float clampToUnit(float value)
{
    return std::min(std::max(0.0F, value), 1.0F);
}

/// The values that a pass stores in an image of such samples:
///   count                 how many different values there are
///   stored()              rounds a value to the stored one
///   storedTimesWhite()    rounds a value and multiplies it by 255, as the filters' formulas do
///   sampleOf()            rounds a value and converts it to a sample of the image
///   indexOf()             returns the index of the stored value, below `count`
///   valueOf()             returns the stored value with this index
template <typename Sample>
struct StoredValues;

/// Bytes: 0..1 in steps of 1/255, rounded to nearest.
template <>
struct StoredValues<std::uint8_t> {
    static constexpr std::size_t count = 256;

    static std::uint8_t sampleOf(float value) { return static_cast<std::uint8_t>(rounded(value)); }
    static std::uint32_t indexOf(float value) { return static_cast<std::uint32_t>(rounded(value)); }
    static float valueOf(std::size_t index) { return static_cast<float>(index) / white; }
    static float stored(float value) { return storedTimesWhite(value) / white; }
    // A byte divided by 255 and multiplied by 255 is the same byte, even in single precision.
    static float storedTimesWhite(float value) { return static_cast<float>(rounded(value)); }

private:
    static int rounded(float value) { return static_cast<int>(clampToUnit(value) * white + 0.5F); }
};

/// Half floats, truncated towards 0. Their bits are the index. Values beyond the range of half floats have the index of
/// infinity.
template <>
struct StoredValues<std::uint16_t> {
    static constexpr std::size_t count = 65536;

    static std::uint16_t sampleOf(float value)
    {
        return static_cast<std::uint16_t>(static_cast<int>(clampToUnit(stored(value)) * 65535.0F + 0.5F));
    }

    static std::uint32_t indexOf(float value)
    {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        const std::uint32_t magnitude = bits & 0x7FFFFFFFU;
        const std::uint32_t mask = subnormalMask(bits);
        // The exponents of floats and half floats differ by 112.
        const std::uint32_t normal = (magnitude >> droppedBits) - (112U << 10U);
        const std::uint32_t index = (normal & ~mask) | static_cast<std::uint32_t>(subnormalSteps(magnitude & mask));
        return bits >> 31U << 15U | (index < infinityBits ? index : infinityBits);
    }

    static float valueOf(std::size_t index) { return std::bit_cast<qfloat16>(static_cast<std::uint16_t>(index)); }

    static float stored(float value)
    {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        const std::uint32_t mask = subnormalMask(bits);
        const float subnormal = static_cast<float>(subnormalSteps(bits & mask)) * subnormalStep;
        return std::bit_cast<float>((bits >> droppedBits << droppedBits & ~mask) |
                                    std::bit_cast<std::uint32_t>(subnormal));
    }

    static float storedTimesWhite(float value) { return stored(value) * white; }

private:
    static constexpr float smallestNormal = 1.0F / 16384;
    static constexpr float subnormalStep = 1.0F / 16777216;
    static constexpr std::uint32_t infinityBits = 0x7C00;
    static constexpr std::uint32_t droppedBits = 13; // of the mantissa of a float

    // Masks instead of branches, which would prevent vectorisation: all bits are set if the float with these bits is
    // below the smallest normal half float, otherwise none.
    static std::uint32_t subnormalMask(std::uint32_t bits)
    {
        return (bits & 0x7FFFFFFFU) < std::bit_cast<std::uint32_t>(smallestNormal) ? 0xFFFFFFFFU : 0;
    }

    static int subnormalSteps(std::uint32_t bits)
    {
        return static_cast<int>(std::bit_cast<float>(bits) / subnormalStep);
    }
};

} // namespace grisal::graphics::cpu
