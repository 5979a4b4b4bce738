// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <csignal>

namespace grisal::batch
{

/// Catches SIGINT, SIGTERM and SIGHUP while it exists, unless they are ignored, and ignores SIGPIPE. The signals arrive
/// only during a system call that is given signalMask(), so that none is missed between a check of count() and the
/// call. There may be only one object at a time.
class Interruption
{
public:
    static constexpr std::array caughtSignals{SIGINT, SIGTERM, SIGHUP};

    Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;
    ~Interruption();

    /// How many of the signals have arrived.
    static int count();

    /// The signal mask for ppoll(), with which the signals arrive.
    const sigset_t &signalMask() const { return m_maskBefore; }

    /// Makes a process that was just forked ignore the signals: on a terminal, Ctrl+C sends them to all processes of a
    /// program.
    static void ignoreInChild();

private:
    sigset_t m_maskBefore{};
    std::array<struct sigaction, caughtSignals.size()> m_actionsBefore{};
    void (*m_pipeHandlerBefore)(int) = nullptr;
};

} // namespace grisal::batch
