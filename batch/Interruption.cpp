// SPDX-License-Identifier: MIT
#include "batch/Interruption.h"

#include <array>

namespace grisal::batch
{

namespace
{

constexpr std::array interruptions{SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t arrived = 0;

extern "C" void countSignal(int /*signal*/)
{
    arrived = arrived + 1;
}

void setHandlers(void (*handler)(int))
{
    for (const int signal : interruptions) {
        std::signal(signal, handler);
    }
}

sigset_t blocked()
{
    sigset_t mask;
    sigemptyset(&mask);
    for (const int signal : interruptions) {
        sigaddset(&mask, signal);
    }
    return mask;
}

} // namespace

Interruption::Interruption()
{
    const sigset_t mask = blocked();
    pthread_sigmask(SIG_BLOCK, &mask, &m_maskBefore);
    arrived = 0;
    setHandlers(countSignal);
    std::signal(SIGPIPE, SIG_IGN);
}

Interruption::~Interruption()
{
    setHandlers(SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
    pthread_sigmask(SIG_SETMASK, &m_maskBefore, nullptr);
}

int Interruption::count()
{
    return arrived;
}

void Interruption::ignoreInChild()
{
    setHandlers(SIG_IGN);
}

} // namespace grisal::batch
