// SPDX-License-Identifier: MIT
#include "graphics/render/ValueRange.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace grisal::graphics
{

namespace
{

/// Pixels that are looked at together. All their components are, since the processor compares many neighbours at once;
/// those that do not count are left out at the end.
constexpr std::size_t together = 16;

template <typename T, std::size_t components>
std::pair<unsigned, unsigned> rangeOf(const T *pixels, std::size_t count)
{
    constexpr std::size_t lanes = together * components;
    std::array<T, lanes> low;
    std::array<T, lanes> high{};
    low.fill(std::numeric_limits<T>::max());
    const T *end = pixels + count / together * lanes;
    for (; pixels != end; pixels += lanes) {
        for (std::size_t i = 0; i < lanes; ++i) {
            low[i] = std::min(low[i], pixels[i]);
            high[i] = std::max(high[i], pixels[i]);
        }
    }
    for (std::size_t i = 0; i < count % together * components; ++i) {
        low[i] = std::min(low[i], pixels[i]);
        high[i] = std::max(high[i], pixels[i]);
    }
    std::pair<unsigned, unsigned> range{low[0], high[0]};
    for (std::size_t i = components; i < lanes; i += components) {
        range = {std::min<unsigned>(range.first, low[i]), std::max<unsigned>(range.second, high[i])};
    }
    return range;
}

} // namespace

template <typename T>
std::pair<unsigned, unsigned> valueRange(const T *pixels, std::size_t count, std::size_t components)
{
    if (count == 0) {
        return {65535, 0};
    }
    return components == 4 ? rangeOf<T, 4>(pixels, count) : rangeOf<T, 3>(pixels, count);
}

template std::pair<unsigned, unsigned> valueRange(const std::uint8_t *, std::size_t, std::size_t);
template std::pair<unsigned, unsigned> valueRange(const std::uint16_t *, std::size_t, std::size_t);

} // namespace grisal::graphics
