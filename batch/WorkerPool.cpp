// SPDX-License-Identifier: MIT
#include "batch/WorkerPool.h"

#include "batch/Interruption.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace grisal::batch
{

namespace
{

constexpr std::size_t longestMessage = 100'000;

QString reasonOf(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

bool sendMessage(int socket, const QByteArray &message)
{
    return send(socket, message.constData(), static_cast<std::size_t>(message.size()), MSG_NOSIGNAL) >= 0;
}

/// Empty if the process at the other end has ended.
QByteArray receiveMessage(int socket)
{
    QByteArray message(longestMessage, Qt::Uninitialized);
    const ssize_t size = recv(socket, message.data(), longestMessage, 0);
    return message.first(std::max<ssize_t>(size, 0));
}

QString describeEnd(int status)
{
    if (WIFSIGNALED(status)) {
        return QStringLiteral("the process that converted it was ended by signal %1 (%2)")
            .arg(QString::number(WTERMSIG(status)), QString::fromLocal8Bit(strsignal(WTERMSIG(status))));
    }
    return QStringLiteral("the process that converted it ended with status %1").arg(WEXITSTATUS(status));
}

} // namespace

WorkerPool::WorkerPool(int workers, Task task)
    : m_task(std::move(task)), m_workers(static_cast<std::size_t>(std::max(workers, 1)))
{
}

WorkerPool::~WorkerPool()
{
    for (Worker &worker : m_workers) {
        if (worker.exists()) {
            end(worker);
        }
    }
}

int WorkerPool::running() const
{
    return static_cast<int>(
        std::count_if(m_workers.begin(), m_workers.end(), [](const Worker &worker) { return worker.task; }));
}

bool WorkerPool::hasIdleWorker() const
{
    return running() < static_cast<int>(m_workers.size());
}

// An idle process is used before a new one is forked.
QString WorkerPool::start(std::uint64_t task, const QByteArray &request)
{
    const auto isIdle = [](const Worker &worker) { return worker.exists() && !worker.task; };
    auto worker = std::find_if(m_workers.begin(), m_workers.end(), isIdle);
    if (worker == m_workers.end()) {
        worker = std::find_if(m_workers.begin(), m_workers.end(), [](const Worker &each) { return !each.exists(); });
        if (QString problem = fork(*worker); !problem.isEmpty()) {
            return problem;
        }
    }
    worker->task = task;
    // If the process is gone, receive() notices it.
    sendMessage(worker->socket, request);
    return {};
}

QString WorkerPool::fork(Worker &worker)
{
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets.data()) != 0) {
        return reasonOf(errno);
    }
    const pid_t process = ::fork();
    if (process == 0) {
        close(sockets[0]);
        for (const Worker &other : m_workers) {
            close(other.socket);
        }
        work(sockets[1]);
    }
    const int error = errno;
    close(sockets[1]);
    if (process < 0) {
        close(sockets[0]);
        return reasonOf(error);
    }
    worker.process = process;
    worker.socket = sockets[0];
    return {};
}

void WorkerPool::work(int socket) const
{
    Interruption::ignoreInChild();
    for (;;) {
        const QByteArray request = receiveMessage(socket);
        if (request.isEmpty() || !sendMessage(socket, m_task(request))) {
            _exit(0);
        }
    }
}

std::vector<WorkerPool::Finished> WorkerPool::wait(int milliseconds, const sigset_t &mask)
{
    std::vector<pollfd> sockets;
    std::vector<Worker *> workers;
    for (Worker &worker : m_workers) {
        if (worker.task) {
            sockets.push_back({worker.socket, POLLIN, 0});
            workers.push_back(&worker);
        }
    }
    const timespec time{milliseconds / 1000, milliseconds % 1000 * 1'000'000L};
    std::vector<Finished> finished;
    if (ppoll(sockets.data(), sockets.size(), &time, &mask) <= 0) {
        return finished;
    }
    for (std::size_t i = 0; i < sockets.size(); ++i) {
        if (sockets[i].revents != 0) {
            finished.push_back(receive(*workers[i]));
        }
    }
    return finished;
}

WorkerPool::Finished WorkerPool::receive(Worker &worker)
{
    Finished finished{*std::exchange(worker.task, std::nullopt), receiveMessage(worker.socket), {}};
    if (finished.result.isEmpty()) {
        finished.crash = describeEnd(end(worker));
    }
    return finished;
}

// A process that is not needed any more notices that its socket is closed.
int WorkerPool::end(Worker &worker)
{
    int status = 0;
    close(worker.socket);
    while (waitpid(worker.process, &status, 0) < 0 && errno == EINTR) {
    }
    worker = {};
    return status;
}

void WorkerPool::kill()
{
    for (Worker &worker : m_workers) {
        if (worker.exists()) {
            ::kill(worker.process, SIGKILL);
            end(worker);
        }
    }
}

} // namespace grisal::batch
