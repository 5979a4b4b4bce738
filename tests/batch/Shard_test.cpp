// SPDX-License-Identifier: MIT
#include "batch/Shard.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>

namespace
{

using namespace grisal::batch;

int shardOf(const QString &path, int count)
{
    int found = -1;
    for (int index = 0; index < count; ++index) {
        if (contains({index, count}, path)) {
            EXPECT_EQ(found, -1) << path.toStdString();
            found = index;
        }
    }
    return found;
}

TEST(Shard, ContainsEverythingByDefault)
{
    EXPECT_TRUE(contains(Shard(), "a.jpg"));
}

TEST(Shard, IsOneOfAllAndOfSimilarSize)
{
    constexpr int count = 7;
    constexpr int files = 7000;
    std::array<int, count> sizes{};
    for (int i = 0; i < files; ++i) {
        const int shard = shardOf(QStringLiteral("holiday/%1.jpg").arg(i), count);
        ASSERT_GE(shard, 0);
        ++sizes.at(static_cast<std::size_t>(shard));
    }
    for (const int size : sizes) {
        EXPECT_NEAR(size, files / count, 150);
    }
}

// Processes of different versions share a list.
TEST(Shard, NeverChanges)
{
    EXPECT_EQ(shardOf("a.jpg", 1000), 26);
    EXPECT_EQ(shardOf("holiday/b.tif", 1000), 792);
    EXPECT_EQ(shardOf(QStringLiteral("/Bilder/Grüße.png"), 1000), 689);
}

TEST(Shard, FollowsFromTheCleanedPath)
{
    for (const char *path : {"./a/b.jpg", "a//b.jpg", "a/x/../b.jpg"}) {
        EXPECT_EQ(shardOf(path, 1000), shardOf("a/b.jpg", 1000)) << path;
    }
}

} // namespace
