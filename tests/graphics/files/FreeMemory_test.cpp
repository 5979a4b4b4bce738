// SPDX-License-Identifier: MIT
#include "graphics/files/FreeMemory.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

#include <limits>

using grisal::graphics::freeMemory;
using grisal::graphics::MemorySources;

namespace
{

constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

struct FreeMemoryTest : testing::Test {
    void write(const QString &name, const QByteArray &contents) const
    {
        QDir().mkpath(QFileInfo(directory.filePath(name)).path());
        QFile file(directory.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    std::uint64_t result() const
    {
        return freeMemory(MemorySources{directory.filePath("proc"), directory.filePath("groups")});
    }

    QTemporaryDir directory;
};

TEST_F(FreeMemoryTest, IsUnlimitedWithoutSources)
{
    EXPECT_EQ(result(), unlimited);
    write("proc/meminfo", "no numbers\nMemAvailable:\nMemAvailable: many kB\n");
    write("proc/self/cgroup", "\n0::\nmemory\n:::\n");
    write("proc/self/limits", "Max address space");
    EXPECT_EQ(result(), unlimited);
}

TEST_F(FreeMemoryTest, ReturnsAvailableMemoryOfTheMachine)
{
    write("proc/meminfo", "MemTotal:       24684084 kB\nMemFree:        1 kB\nMemAvailable:       5000 kB\n");
    EXPECT_EQ(result(), 5000U * 1024);
}

TEST_F(FreeMemoryTest, IsLimitedByTheGroupWithoutItsCachedFiles)
{
    write("proc/meminfo", "MemAvailable: 5000 kB\n");
    write("proc/self/cgroup", "0::/user/app\n");
    write("groups/user/app/memory.max", "1000000\n");
    write("groups/user/app/memory.high", "max\n");
    write("groups/user/app/memory.current", "700000\n");
    EXPECT_EQ(result(), 300'000U);
    write("groups/user/app/memory.stat", "anon 500000\ninactive_file 150000\nactive_file 50000\nfile 300000\n");
    EXPECT_EQ(result(), 500'000U);
    write("groups/user/app/memory.high", "600000\n");
    EXPECT_EQ(result(), 100'000U);
    write("groups/user/app/memory.high", "200000\n");
    EXPECT_EQ(result(), 0U);
}

TEST_F(FreeMemoryTest, IsLimitedByTheParentsOfTheGroup)
{
    write("proc/self/cgroup", "0::/user/app\n");
    write("groups/user/app/memory.max", "max\n");
    write("groups/user/app/memory.current", "100\n");
    write("groups/user/memory.max", "9000\n");
    write("groups/user/memory.current", "2000\n");
    EXPECT_EQ(result(), 7000U);
    write("groups/memory.max", "8000\n");
    write("groups/memory.current", "5000\n");
    EXPECT_EQ(result(), 3000U);
}

TEST_F(FreeMemoryTest, ReadsGroupsOfVersion1)
{
    write("proc/self/cgroup", "9:name=systemd:/\n4:cpu,memory:/docker/a:b\n0::/\n");
    write("groups/memory/docker/a:b/memory.limit_in_bytes", "9223372036854771712\n");
    write("groups/memory/docker/a:b/memory.usage_in_bytes", "5000\n");
    EXPECT_EQ(result(), 9'223'372'036'854'771'712U - 5000);
    write("groups/memory/memory.limit_in_bytes", "10000\n");
    write("groups/memory/memory.usage_in_bytes", "6000\n");
    write("groups/memory/memory.stat", "inactive_file 1\ntotal_inactive_file 500\ntotal_active_file 1500\n");
    EXPECT_EQ(result(), 6000U);
}

TEST_F(FreeMemoryTest, ReadsGroupsOfAHybridSetup)
{
    write("proc/self/cgroup", "0::/app\n");
    write("groups/unified/app/memory.max", "10000\n");
    write("groups/unified/app/memory.current", "6000\n");
    EXPECT_EQ(result(), 4000U);
}

TEST_F(FreeMemoryTest, IsLimitedByTheAddressSpace)
{
    const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    write("proc/self/statm", "100 50 20 1 0 30 0\n");
    write("proc/self/limits", "Limit  Soft Limit  Hard Limit  Units\n"
                              "Max address space         unlimited            unlimited            bytes\n");
    EXPECT_EQ(result(), unlimited);
    write("proc/self/limits", "Max address space         10000000             unlimited            bytes\n");
    EXPECT_EQ(result(), 10'000'000 - 100 * page);
}

TEST_F(FreeMemoryTest, ReturnsAFiniteSizeOnThisMachine)
{
    EXPECT_GT(freeMemory(), 0U);
    EXPECT_LT(freeMemory(), unlimited);
}

} // namespace
