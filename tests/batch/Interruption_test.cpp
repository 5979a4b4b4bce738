// SPDX-License-Identifier: MIT
#include "batch/Interruption.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace grisal::batch
{

namespace
{

using Handler = void (*)(int);

constexpr std::array handledSignals{SIGINT, SIGTERM, SIGHUP, SIGPIPE};

std::map<int, Handler> handlers()
{
    std::map<int, Handler> found;
    for (const int signal : handledSignals) {
        struct sigaction action {
        };
        sigaction(signal, nullptr, &action);
        found[signal] = action.sa_handler;
    }
    return found;
}

bool isBlocked(int signal)
{
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    return sigismember(&mask, signal) == 1;
}

/// Starts without any handler. A program in the background, for example, inherits that SIGINT is ignored.
class InterruptionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const int signal : handledSignals) {
            std::signal(signal, SIG_DFL);
        }
    }

    void TearDown() override
    {
        for (const auto &[signal, handler] : m_before) {
            std::signal(signal, handler);
        }
    }

private:
    const std::map<int, Handler> m_before = handlers();
};

} // namespace

TEST_F(InterruptionTest, CatchesSignalsWhileItExists)
{
    std::signal(SIGHUP, SIG_IGN);
    const std::map<int, Handler> before = handlers();
    {
        const Interruption interruption;
        std::map<int, Handler> during = handlers();
        EXPECT_NE(during[SIGINT], before.at(SIGINT));
        EXPECT_EQ(during[SIGTERM], during[SIGINT]);
        EXPECT_EQ(during[SIGHUP], Handler{SIG_IGN});
        EXPECT_EQ(during[SIGPIPE], Handler{SIG_IGN});
        EXPECT_TRUE(isBlocked(SIGTERM));
    }
    EXPECT_EQ(handlers(), before);
    EXPECT_FALSE(isBlocked(SIGTERM));
}

} // namespace grisal::batch
