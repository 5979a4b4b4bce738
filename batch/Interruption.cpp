// SPDX-License-Identifier: MIT
#include "batch/Interruption.h"

namespace grisal::batch
{

namespace
{

volatile std::sig_atomic_t arrived = 0;

extern "C" void countSignal(int /*signal*/)
{
    arrived = arrived + 1;
}

sigset_t blocked()
{
    sigset_t mask;
    sigemptyset(&mask);
    for (const int signal : Interruption::caughtSignals) {
        sigaddset(&mask, signal);
    }
    return mask;
}

} // namespace

// A signal that is ignored, for example SIGHUP after nohup, stays ignored.
Interruption::Interruption()
{
    const sigset_t mask = blocked();
    pthread_sigmask(SIG_BLOCK, &mask, &m_maskBefore);
    arrived = 0;
    for (std::size_t i = 0; i < caughtSignals.size(); ++i) {
        sigaction(caughtSignals[i], nullptr, &m_actionsBefore[i]);
        if (m_actionsBefore[i].sa_handler != SIG_IGN) {
            std::signal(caughtSignals[i], countSignal);
        }
    }
    m_pipeHandlerBefore = std::signal(SIGPIPE, SIG_IGN);
}

Interruption::~Interruption()
{
    for (std::size_t i = 0; i < caughtSignals.size(); ++i) {
        sigaction(caughtSignals[i], &m_actionsBefore[i], nullptr);
    }
    std::signal(SIGPIPE, m_pipeHandlerBefore);
    pthread_sigmask(SIG_SETMASK, &m_maskBefore, nullptr);
}

int Interruption::count()
{
    return arrived;
}

void Interruption::ignoreInChild()
{
    for (const int signal : Interruption::caughtSignals) {
        std::signal(signal, SIG_IGN);
    }
}

} // namespace grisal::batch
