// SPDX-License-Identifier: MIT
#include "batch/Interruption.h"

#include <gtest/gtest.h>

#include <map>

namespace grisal::batch
{

namespace
{

using Handler = void (*)(int);

std::map<int, Handler> handlers()
{
    std::map<int, Handler> found;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        struct sigaction action {
        };
        sigaction(signal, nullptr, &action);
        found[signal] = action.sa_handler;
    }
    return found;
}

} // namespace

TEST(Interruption, CatchesSignalsWhileItExists)
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
    }
    EXPECT_EQ(handlers(), before);
    std::signal(SIGHUP, SIG_DFL);
}

} // namespace grisal::batch
