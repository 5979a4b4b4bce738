// SPDX-License-Identifier: MIT
#include "graphics/render/ValueRange.h"

#include "graphics/image/Bands.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <mutex>

namespace grisal::graphics
{

namespace
{

using Range = std::pair<unsigned, unsigned>;

constexpr std::size_t smallestBand = 500'000;

// With values of the pixels' own type and a number of components that is known when this is compiled, a release's
// optimiser takes several pixels at a time.
template <std::size_t components, typename T>
Range rangeOf(const T *pixels, std::size_t count)
{
    T smallest = std::numeric_limits<T>::max();
    T largest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        smallest = std::min(smallest, pixels[i * components]);
        largest = std::max(largest, pixels[i * components]);
    }
    return {smallest, largest};
}

} // namespace

template <typename T>
Range valueRange(const T *pixels, std::size_t count, std::size_t components)
{
    Range range{65535, 0};
    if (count == 0) {
        return range;
    }
    std::mutex joining;
    inBands(count, smallestBand, [&](std::size_t first, std::size_t end) {
        const T *band = pixels + first * components;
        const Range own = components == 4 ? rangeOf<4>(band, end - first) : rangeOf<3>(band, end - first);
        const std::lock_guard lock(joining);
        range = {std::min(range.first, own.first), std::max(range.second, own.second)};
    });
    return range;
}

template Range valueRange(const std::uint8_t *, std::size_t, std::size_t);
template Range valueRange(const std::uint16_t *, std::size_t, std::size_t);

} // namespace grisal::graphics
