// SPDX-License-Identifier: MIT
#include "graphics/image/HalfFloats.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace grisal::graphics
{

namespace
{

constexpr float largestSample = 65535;
constexpr std::size_t blockSize = 4096; // the buffer fits into the first-level cache

std::uint16_t sampleOf(float value)
{
    // NaN becomes 0, because the comparison is then false.
    return value > 0 ? static_cast<std::uint16_t>(std::lrint(std::min(value, 1.0F) * largestSample)) : 0;
}

} // namespace

void convertToHalfFloats(const std::uint16_t *samples, std::size_t count, qfloat16 *halfFloats)
{
    std::array<float, blockSize> values;
    for (std::size_t first = 0; first < count; first += blockSize) {
        const std::size_t length = std::min(blockSize, count - first);
        std::transform(samples + first, samples + first + length, values.begin(),
                       [](std::uint16_t sample) { return static_cast<float>(sample) / largestSample; });
        qFloatToFloat16(halfFloats + first, values.data(), static_cast<qsizetype>(length));
    }
}

void convertFromHalfFloats(const qfloat16 *halfFloats, std::size_t count, std::uint16_t *samples)
{
    std::array<float, blockSize> values;
    for (std::size_t first = 0; first < count; first += blockSize) {
        const std::size_t length = std::min(blockSize, count - first);
        qFloatFromFloat16(values.data(), halfFloats + first, static_cast<qsizetype>(length));
        std::transform(values.begin(), values.begin() + length, samples + first, sampleOf);
    }
}

} // namespace grisal::graphics
