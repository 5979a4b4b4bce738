// SPDX-License-Identifier: MIT
#include "graphics/render/ValueRange.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace grisal::test
{

using graphics::valueRange;
using Bytes = std::vector<std::uint8_t>;

TEST(ValueRangeTest, GoesByTheFirstComponentAlone)
{
    const Bytes pixels{40, 0, 255, 20, 1, 254, 30, 2, 253};

    EXPECT_EQ(valueRange(pixels.data(), 3, 3), (std::pair<unsigned, unsigned>{20, 40}));
}

TEST(ValueRangeTest, StepsOverAFourthComponent)
{
    const std::vector<std::uint16_t> pixels{4000, 0, 0, 65535, 2000, 0, 0, 0};

    EXPECT_EQ(valueRange(pixels.data(), 2, 4), (std::pair<unsigned, unsigned>{2000, 4000}));
}

TEST(ValueRangeTest, WithoutPixelsTheEndsAreCrossed)
{
    EXPECT_EQ(valueRange<std::uint8_t>(nullptr, 0, 3), (std::pair<unsigned, unsigned>{65535, 0}));
}

TEST(ValueRangeTest, FindsTheEndsWhereverTheyStand)
{
    // Enough for several cores.
    constexpr std::size_t count = 2'000'003;
    std::vector<std::uint16_t> pixels(count * 3, 500);
    for (const std::size_t at : {std::size_t{0}, count / 4, count / 2, count - 1}) {
        pixels[at * 3] = 7;
        pixels[(at + 11) % count * 3] = 60000;
        EXPECT_EQ(valueRange(pixels.data(), count, 3), (std::pair<unsigned, unsigned>{7, 60000})) << at;
        pixels[at * 3] = pixels[(at + 11) % count * 3] = 500;
    }
}

/// Of many pixels, whose other components go further than the first ones.
template <typename T>
void expectFirstComponentsOnly(std::size_t components)
{
    constexpr std::size_t count = 101;
    std::vector<T> pixels(count * components);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = static_cast<T>(i % components != 0 ? i % 2 * 250 : 10 + i / components);
    }
    EXPECT_EQ(valueRange(pixels.data(), count, components), (std::pair<unsigned, unsigned>{10, 110}));
}

TEST(ValueRangeTest, TheOtherComponentsOfManyPixelsDoNotCount)
{
    for (const std::size_t components : {3, 4}) {
        expectFirstComponentsOnly<std::uint8_t>(components);
        expectFirstComponentsOnly<std::uint16_t>(components);
    }
}

} // namespace grisal::test
