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

// Pixels are looked at in groups: the smallest and the largest may stand anywhere in a group or behind the last one.
TEST(ValueRangeTest, FindsTheEndsWhereverTheyStand)
{
    constexpr std::size_t count = 37;
    for (std::size_t at = 0; at < count; ++at) {
        std::vector<std::uint16_t> pixels(count * 3, 500);
        pixels[at * 3] = 7;
        pixels[(at + 11) % count * 3] = 60000;
        pixels[(at + 5) % count * 3 + 1] = 1;
        pixels[(at + 6) % count * 3 + 2] = 65535;
        EXPECT_EQ(valueRange(pixels.data(), count, 3), (std::pair<unsigned, unsigned>{7, 60000})) << at;
    }
}

} // namespace grisal::test
