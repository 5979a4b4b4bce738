// SPDX-License-Identifier: MIT
#include "batch/MemoryBudget.h"
#include "graphics/files/FreeMemory.h"

#include <gtest/gtest.h>

namespace grisal::batch
{

TEST(MemoryBudgetTest, AllowsPicturesUpToTheLimitTogether)
{
    MemoryBudget budget(100);

    budget.take(0, 60);
    EXPECT_TRUE(budget.allows(40));
    EXPECT_FALSE(budget.allows(41));
}

TEST(MemoryBudgetTest, AllowsOneLargePictureAlone)
{
    MemoryBudget budget(100);

    EXPECT_TRUE(budget.allows(1000));
    budget.take(0, 1000);
    EXPECT_FALSE(budget.allows(0));
}

TEST(MemoryBudgetTest, ReleasedMemoryIsAvailableAgain)
{
    MemoryBudget budget(100);
    budget.take(3, 60);
    budget.take(5, 40);

    budget.release(3);
    EXPECT_TRUE(budget.allows(60));
    EXPECT_FALSE(budget.allows(61));
    budget.release(7);
    EXPECT_FALSE(budget.allows(61));
    budget.release(5);
    EXPECT_TRUE(budget.allows(1000));
}

TEST(MemoryBudgetTest, DefaultIsHalfOfTheMachineOrLess)
{
    const std::uint64_t limit = MemoryBudget(std::nullopt).limit();

    EXPECT_GT(limit, 0U);
    EXPECT_LE(limit, graphics::machineMemory() / 2);
}

} // namespace grisal::batch
