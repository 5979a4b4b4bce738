// SPDX-License-Identifier: MIT
#include "batch/WorkerPool.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <set>

namespace grisal::batch
{

namespace
{

constexpr int patience = 60'000;

sigset_t noSignals()
{
    sigset_t mask;
    sigemptyset(&mask);
    return mask;
}

WorkerPool::Finished nextOf(WorkerPool &pool)
{
    const std::vector<WorkerPool::Finished> finished = pool.wait(patience, noSignals());
    EXPECT_EQ(finished.size(), 1U);
    return finished.empty() ? WorkerPool::Finished{} : finished.front();
}

QByteArray processOf(const QByteArray & /*request*/)
{
    return QByteArray::number(getpid());
}

/// Waits until a signal ends the process.
QByteArray waitForever(const QByteArray & /*request*/)
{
    for (;;) {
        pause();
    }
}

} // namespace

TEST(WorkerPoolTest, ReturnsTheResultsOfTasks)
{
    WorkerPool pool(2, [](const QByteArray &request) { return request + request; });

    ASSERT_EQ(pool.start(4, "4"), QString());
    ASSERT_EQ(pool.start(7, "7"), QString());
    EXPECT_EQ(pool.running(), 2);
    EXPECT_FALSE(pool.hasIdleWorker());

    std::set<std::pair<std::uint64_t, QByteArray>> results;
    while (pool.running() > 0) {
        for (const WorkerPool::Finished &finished : pool.wait(patience, noSignals())) {
            EXPECT_EQ(finished.crash, QString());
            results.insert({finished.task, finished.result});
        }
    }
    EXPECT_EQ(results, (std::set<std::pair<std::uint64_t, QByteArray>>{{4, "44"}, {7, "77"}}));
    EXPECT_TRUE(pool.hasIdleWorker());
}

TEST(WorkerPoolTest, ForksAProcessOnlyIfNoneIsIdle)
{
    WorkerPool pool(3, processOf);

    ASSERT_EQ(pool.start(0, "0"), QString());
    const QByteArray first = nextOf(pool).result;
    ASSERT_EQ(pool.start(1, "1"), QString());
    EXPECT_EQ(nextOf(pool).result, first);
    EXPECT_NE(first.toInt(), getpid());
}

TEST(WorkerPoolTest, CrashEndsOnlyItsOwnTask)
{
    WorkerPool pool(1, [](const QByteArray &request) {
        if (request == "1") {
            std::raise(SIGKILL);
        }
        return QByteArray("fine");
    });

    ASSERT_EQ(pool.start(1, "1"), QString());
    const WorkerPool::Finished crashed = nextOf(pool);
    EXPECT_EQ(crashed.task, 1U);
    EXPECT_EQ(crashed.crash, QStringLiteral("the process that converted it was ended by signal 9 (Killed)"));

    ASSERT_EQ(pool.start(2, "2"), QString());
    EXPECT_EQ(nextOf(pool).result, "fine");
}

TEST(WorkerPoolTest, ReportsTheStatusOfAProcessThatExits)
{
    WorkerPool pool(1, [](const QByteArray & /*request*/) -> QByteArray { _exit(3); });

    ASSERT_EQ(pool.start(0, "0"), QString());
    EXPECT_EQ(nextOf(pool).crash, QStringLiteral("the process that converted it ended with status 3"));
}

TEST(WorkerPoolTest, ProcessesIgnoreTheSignalsOfATerminal)
{
    WorkerPool pool(1, [](const QByteArray & /*request*/) {
        std::raise(SIGINT);
        std::raise(SIGTERM);
        std::raise(SIGHUP);
        return QByteArray("alive");
    });

    ASSERT_EQ(pool.start(0, "0"), QString());
    EXPECT_EQ(nextOf(pool).result, "alive");
}

TEST(WorkerPoolTest, WaitEndsAfterTheTime)
{
    WorkerPool pool(1, waitForever);
    ASSERT_EQ(pool.start(0, "0"), QString());

    EXPECT_TRUE(pool.wait(1, noSignals()).empty());
    EXPECT_EQ(pool.running(), 1);
    pool.kill();
}

TEST(WorkerPoolTest, KillEndsRunningTasks)
{
    WorkerPool pool(2, waitForever);
    ASSERT_EQ(pool.start(0, "0"), QString());
    ASSERT_EQ(pool.start(1, "1"), QString());

    pool.kill();

    EXPECT_EQ(pool.running(), 0);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(WorkerPoolTest, DestructorWaitsForAllProcesses)
{
    {
        WorkerPool pool(2, processOf);
        ASSERT_EQ(pool.start(0, "0"), QString());
        ASSERT_EQ(pool.start(1, "1"), QString());
    }
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(WorkerPoolTest, LongResultsArriveWhole)
{
    WorkerPool pool(1, [](const QByteArray & /*request*/) { return QByteArray(90'000, 'x'); });

    ASSERT_EQ(pool.start(0, "0"), QString());
    EXPECT_EQ(nextOf(pool).result, QByteArray(90'000, 'x'));
}

} // namespace grisal::batch
