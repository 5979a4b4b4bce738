// SPDX-License-Identifier: MIT
#include "graphics/render/ValueRange.h"

#include "graphics/image/Bands.h"

#include <algorithm>
#include <cstdint>
#include <mutex>

namespace grisal::graphics
{

namespace
{

using Range = std::pair<unsigned, unsigned>;

constexpr std::size_t smallestBand = 500'000;

template <typename T>
Range rangeOf(const T *pixels, std::size_t count, std::size_t components)
{
    Range range{65535, 0};
    for (std::size_t i = 0; i < count; ++i, pixels += components) {
        range = {std::min<unsigned>(range.first, *pixels), std::max<unsigned>(range.second, *pixels)};
    }
    return range;
}

} // namespace

template <typename T>
Range valueRange(const T *pixels, std::size_t count, std::size_t components)
{
    Range range{65535, 0};
    std::mutex joining;
    inBands(count, smallestBand, [&](std::size_t first, std::size_t end) {
        const Range own = rangeOf(pixels + first * components, end - first, components);
        const std::lock_guard lock(joining);
        range = {std::min(range.first, own.first), std::max(range.second, own.second)};
    });
    return range;
}

template Range valueRange(const std::uint8_t *, std::size_t, std::size_t);
template Range valueRange(const std::uint16_t *, std::size_t, std::size_t);

} // namespace grisal::graphics
