// SPDX-License-Identifier: MIT
#include "batch/Batch.h"

#include "batch/Converter.h"
#include "batch/Interruption.h"
#include "batch/KeptMemory.h"
#include "batch/MemoryBudget.h"
#include "batch/Progress.h"
#include "batch/Report.h"
#include "batch/WorkerPool.h"
#include "graphics/files/FreeMemory.h"

#include <QByteArrayList>
#include <QJsonDocument>

namespace grisal::batch
{

namespace
{

Verbosity verbosityOf(const Options &options)
{
    if (options.quiet) {
        return Verbosity::Quiet;
    }
    return options.verbose ? Verbosity::Verbose : Verbosity::Normal;
}

/// Why a picture cannot even be converted alone; empty if it can.
QString shortageFor(std::uint64_t bytes)
{
    const std::uint64_t free = graphics::freeMemory();
    return bytes <= free ? QString()
                         : QStringLiteral("it needs up to %1 of memory, but only %2 are free")
                               .arg(graphics::memoryText(bytes), graphics::memoryText(free));
}

// A path contains no NUL.
QByteArray requestOf(const Job &job)
{
    return job.source.toUtf8() + '\0' + job.output.toUtf8();
}

Job jobOf(const QByteArray &request)
{
    const QByteArrayList paths = request.split('\0');
    return {QString::fromUtf8(paths.value(0)), QString::fromUtf8(paths.value(1))};
}

/// One call of convertAll().
class Run
{
public:
    Run(const std::vector<Job> &jobs, const graphics::Look &look, const Options &options)
        : m_jobs(jobs), m_converter(look, options),
          m_pool(options.jobs, [this](const QByteArray &job) { return convert(jobOf(job)); }), m_budget(options.memory),
          m_memoryToKeep(m_budget.limit() / 2 / static_cast<std::uint64_t>(options.jobs)),
          m_progress(jobs.size(), verbosityOf(options)), m_report(options.report)
    {
    }

    ExitStatus run()
    {
        if (!m_report.problem().isEmpty()) {
            printProblem(m_report.problem());
            return WrongUsage;
        }
        while (Interruption::count() < 2) {
            startJobs();
            if (m_pool.running() == 0) {
                break;
            }
            finishJobs();
            reportInterruption();
        }
        m_pool.kill();
        m_progress.finish();
        return status();
    }

private:
    /// Runs in the processes of the pool.
    QByteArray convert(const Job &job) const
    {
        keepFreedMemory();
        QByteArray result = QJsonDocument(toJson(m_converter.convert(job))).toJson(QJsonDocument::Compact);
        returnFreedMemoryAbove(m_memoryToKeep);
        return result;
    }

    void startJobs()
    {
        while (Interruption::count() == 0 && m_next < m_jobs.size() && m_pool.hasIdleWorker()) {
            const std::uint64_t bytes = memoryToConvert(m_jobs[m_next].source);
            if (!m_budget.allows(bytes)) {
                return;
            }
            const bool alone = m_pool.running() == 0;
            QString problem = alone ? shortageFor(bytes) : QString();
            if (problem.isEmpty()) {
                problem = m_pool.start(m_next, requestOf(m_jobs[m_next]));
            }
            if (problem.isEmpty()) {
                m_budget.take(m_next, bytes);
            } else if (alone) {
                finish(m_next, {Result::Failed, problem});
            } else {
                return;
            }
            ++m_next;
        }
    }

    void finishJobs()
    {
        constexpr int milliseconds = 200;
        for (const WorkerPool::Finished &finished : m_pool.wait(milliseconds, m_interruption.signalMask())) {
            m_budget.release(finished.task);
            finish(finished.task, finished.crash.isEmpty()
                                      ? outcomeOf(QJsonDocument::fromJson(finished.result).object())
                                      : Outcome{Result::Failed, finished.crash});
        }
        m_progress.refresh();
    }

    void reportInterruption()
    {
        if (Interruption::count() == 1 && !m_interruptionIsReported && m_pool.running() > 0) {
            m_progress.printNotice(
                QStringLiteral("finishing the pictures in work; interrupt once more to end at once"));
            m_interruptionIsReported = true;
        }
    }

    void finish(std::uint64_t index, const Outcome &outcome)
    {
        m_progress.add(m_jobs[index], outcome);
        m_report.add(m_jobs[index], outcome);
    }

    ExitStatus status() const
    {
        const Counts &counts = m_progress.counts();
        if (!m_report.problem().isEmpty()) {
            printProblem(m_report.problem());
        }
        if (counts.finished() < counts.total) {
            return Interrupted;
        }
        return counts.failed == 0 && m_report.problem().isEmpty() ? AllDone : SomeFailed;
    }

    const std::vector<Job> &m_jobs;
    const Converter m_converter;
    const Interruption m_interruption;
    WorkerPool m_pool;
    MemoryBudget m_budget;
    const std::uint64_t m_memoryToKeep; ///< of each process between two pictures
    Progress m_progress;
    Report m_report;
    std::size_t m_next = 0;
    bool m_interruptionIsReported = false;
};

} // namespace

ExitStatus convertAll(const std::vector<Job> &jobs, const graphics::Look &look, const Options &options)
{
    return Run(jobs, look, options).run();
}

} // namespace grisal::batch
