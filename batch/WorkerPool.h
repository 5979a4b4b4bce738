// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

#include <csignal>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace grisal::batch
{

/// Runs tasks in processes that are forked from this one when they are needed. A task that crashes
/// ends only its own process, and the libraries that decode images, which have global state, need no locks.
///
/// The program must have a single thread. A process ends after its current task when this object is destroyed or this
/// process dies.
class WorkerPool
{
public:
    /// Runs in another process and turns a request into a result, each of 1 byte to 100 kilobytes. Everything that
    /// differs between tasks is in the request: memory that is shared with this process is copied where it is changed,
    /// which includes the reference counts of texts.
    using Task = std::function<QByteArray(const QByteArray &request)>;

    struct Finished {
        std::uint64_t task; ///< as it was passed to start()
        QByteArray result;
        QString crash; ///< how the process ended without a result, a sentence in English; empty normally
    };

    WorkerPool(int workers, Task task);
    WorkerPool(const WorkerPool &) = delete;
    WorkerPool &operator=(const WorkerPool &) = delete;
    ~WorkerPool();

    int running() const;
    bool hasIdleWorker() const;

    /// Starts a task on an idle worker. Returns a reason, for example that there are too many processes, if that is
    /// impossible.
    QString start(std::uint64_t task, const QByteArray &request);

    /// Waits until tasks have finished, a signal that `mask` does not block has arrived or the time has passed.
    std::vector<Finished> wait(int milliseconds, const sigset_t &mask);

    /// Ends all processes at once, without results.
    void kill();

private:
    struct Worker {
        pid_t process = -1;
        int socket = -1;
        std::optional<std::uint64_t> task;

        bool exists() const { return process > 0; }
    };

    QString fork(Worker &worker);
    [[noreturn]] void work(int socket) const;
    static Finished receive(Worker &worker);
    static int end(Worker &worker);

    Task m_task;
    std::vector<Worker> m_workers;
};

} // namespace grisal::batch
