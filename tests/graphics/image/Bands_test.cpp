// SPDX-License-Identifier: MIT
#include "graphics/image/Bands.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <stdexcept>
#include <vector>

namespace grisal::test
{

using graphics::inBands;

/// How often each of `count` things was worked on.
std::vector<int> visits(std::size_t count, std::size_t smallest)
{
    std::vector<int> visited(count);
    inBands(count, smallest, [&](std::size_t first, std::size_t end) {
        for (std::size_t i = first; i < end; ++i) {
            ++visited[i];
        }
    });
    return visited;
}

TEST(BandsTest, EverythingIsDoneOnce)
{
    for (const std::size_t count : {1, 2, 3, 7, 1000, 1001, 1003}) {
        EXPECT_EQ(visits(count, 1), std::vector<int>(count, 1)) << count;
    }
}

TEST(BandsTest, WhatABandThrowsIsThrownOnceAllAreDone)
{
    for (const std::size_t failing : {std::size_t{0}, std::size_t{999}}) {
        std::atomic<std::size_t> done = 0;
        const auto work = [&](std::size_t first, std::size_t end) {
            done += end - first;
            if (first <= failing && failing < end) {
                throw std::runtime_error("no memory");
            }
        };
        EXPECT_THROW(inBands(1000, 1, work), std::runtime_error);
        EXPECT_EQ(done, 1000U);
    }
}

TEST(BandsTest, LittleIsDoneInOneGo)
{
    int calls = 0;
    inBands(99, 50, [&](std::size_t first, std::size_t end) {
        ++calls;
        EXPECT_EQ(first, 0U);
        EXPECT_EQ(end, 99U);
    });
    EXPECT_EQ(calls, 1);
}

TEST(BandsTest, NoBandIsSmallerThanWanted)
{
    std::mutex adding;
    std::vector<std::size_t> sizes;
    inBands(1003, 300, [&](std::size_t first, std::size_t end) {
        const std::lock_guard lock(adding);
        sizes.push_back(end - first);
    });
    for (const std::size_t size : sizes) {
        EXPECT_GE(size, 300U);
    }
}

TEST(BandsTest, NothingIsToBeDoneWithNothing)
{
    std::atomic<std::size_t> done = 0;
    inBands(0, 10, [&](std::size_t first, std::size_t end) { done += end - first; });
    EXPECT_EQ(done, 0U);
}

} // namespace grisal::test
