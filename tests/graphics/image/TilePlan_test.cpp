// SPDX-License-Identifier: MIT
#include "graphics/image/TilePlan.h"

#include <gtest/gtest.h>

#include <ostream>

namespace grisal::graphics
{

namespace
{

struct Plan {
    std::uint32_t size;
    std::uint32_t padded;
    std::uint32_t tile;
    std::uint32_t count;
};

std::ostream &operator<<(std::ostream &out, const Plan &plan)
{
    return out << plan.size;
}

class TilePlanTest : public testing::TestWithParam<Plan>
{
};

} // namespace

TEST_P(TilePlanTest, HasPaddedLengthTileLengthAndCount)
{
    const Plan &expected = GetParam();

    const TileSide side = planTileSide(expected.size);

    EXPECT_EQ(side, (TileSide{expected.padded, expected.tile}));
    EXPECT_EQ(tileCount(side), expected.count);
}

// The remainder is added, not the distance to the next multiple of 4: 1003, 2047 and 2055 are padded more than needed.
// The number of tiles depends on the size before padding: 2047 is one tile of 2052.
INSTANTIATE_TEST_SUITE_P(Sizes, TilePlanTest,
                         testing::Values(Plan{1, 4, 4, 1}, Plan{2, 4, 4, 1}, Plan{3, 8, 8, 1}, Plan{4, 4, 4, 1},
                                         Plan{5, 8, 8, 1}, Plan{1001, 1004, 1004, 1}, Plan{1002, 1004, 1004, 1},
                                         Plan{1003, 1008, 1008, 1}, Plan{2047, 2052, 2052, 1},
                                         Plan{2048, 2048, 2048, 1}, Plan{2049, 2052, 513, 4}, Plan{2054, 2056, 514, 4},
                                         Plan{2055, 2060, 515, 4}, Plan{6000, 6000, 1500, 4},
                                         Plan{9000, 9000, 2250, 4}));

TEST(TilePlanPropertiesTest, TilesCoverThePaddedSideAndThePaddedSideCoversTheImage)
{
    for (std::uint32_t size = 1; size <= 10000; ++size) {
        const TileSide side = planTileSide(size);

        ASSERT_GE(side.padded, size);
        ASSERT_LE(side.padded, size + 5);
        ASSERT_EQ(side.padded % 4, 0U) << size;
        ASSERT_EQ(tileCount(side) * side.tile, side.padded) << size;
        ASSERT_EQ(tileCount(side), size > 2048 ? 4U : 1U) << size;
    }
}

TEST(TilePlanPropertiesTest, SideOfZeroIsOneTileOfZero)
{
    EXPECT_EQ(planTileSide(0), (TileSide{0, 0}));
    EXPECT_EQ(tileCount(TileSide{0, 0}), 1U);
}

} // namespace grisal::graphics
