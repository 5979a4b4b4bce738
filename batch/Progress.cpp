// SPDX-License-Identifier: MIT
#include "batch/Progress.h"

#include "graphics/ControlCharacters.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>

namespace grisal::batch
{

namespace
{

constexpr double secondsPerMinute = 60;
constexpr double minutesPerHour = 60;
constexpr qint64 refreshInterval = 200; // milliseconds
constexpr double millisecondsPerSecond = 1000;
const char *const clearToEnd = "\r\x1b[K";

QString duration(double seconds)
{
    const double minutes = seconds / secondsPerMinute;
    if (minutes < 2) {
        return QStringLiteral("%1 s").arg(std::lround(seconds));
    }
    if (minutes < 2 * minutesPerHour) {
        return QStringLiteral("%1 min").arg(std::lround(minutes));
    }
    return QStringLiteral("%1 h").arg(minutes / minutesPerHour, 0, 'f', 1);
}

QString details(const Outcome &outcome)
{
    return QStringLiteral(" (%1 x %2, %3 bits, %4 s)")
        .arg(outcome.width)
        .arg(outcome.height)
        .arg(outcome.depth)
        .arg(outcome.seconds, 0, 'f', 2);
}

void write(std::FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
    std::fflush(stream);
}

} // namespace

void Counts::add(Result result)
{
    switch (result) {
    case Result::Done:
        ++done;
        break;
    case Result::Skipped:
        ++skipped;
        break;
    case Result::Failed:
        ++failed;
        break;
    }
}

QString progressText(const Counts &counts, double seconds)
{
    QStringList parts{QStringLiteral("%1/%2").arg(counts.finished()).arg(counts.total)};
    if (counts.done > 0 && seconds > 0) {
        const double perSecond = static_cast<double>(counts.done) / seconds;
        const double left = static_cast<double>(counts.total - counts.finished()) / perSecond;
        parts << QStringLiteral("%1 pictures a minute").arg(perSecond * secondsPerMinute, 0, 'f', 0)
              << duration(left) + QStringLiteral(" left");
    }
    if (counts.failed > 0) {
        parts << QStringLiteral("%1 failed").arg(counts.failed);
    }
    return parts.join(QStringLiteral(", "));
}

QString summaryText(const Counts &counts, double seconds)
{
    QString text = QStringLiteral("%1 %2: %3 done")
                       .arg(counts.total)
                       .arg(counts.total == 1 ? QStringLiteral("picture") : QStringLiteral("pictures"))
                       .arg(counts.done);
    if (counts.skipped > 0) {
        text += QStringLiteral(", %1 skipped").arg(counts.skipped);
    }
    if (counts.failed > 0) {
        text += QStringLiteral(", %1 failed").arg(counts.failed);
    }
    if (counts.finished() < counts.total) {
        text += QStringLiteral(", %1 left").arg(counts.total - counts.finished());
    }
    return text + QStringLiteral(", in ") + duration(seconds);
}

Terminals Terminals::detect()
{
    return {isatty(STDOUT_FILENO) != 0, isatty(STDERR_FILENO) != 0};
}

Progress::Progress(std::size_t total, Verbosity verbosity, Terminals terminals)
    : m_verbosity(verbosity), m_showsProgress(verbosity != Verbosity::Quiet && terminals.errors),
      m_printsLines(verbosity == Verbosity::Verbose ||
                    (verbosity == Verbosity::Normal && !(terminals.output && terminals.errors)))
{
    m_counts.total = total;
    m_time.start();
}

double Progress::seconds() const
{
    return static_cast<double>(m_time.elapsed()) / millisecondsPerSecond;
}

void Progress::add(const Job &job, const Outcome &outcome)
{
    m_counts.add(outcome.result);
    if (outcome.result == Result::Failed) {
        print(stderr, QStringLiteral("%1: %2").arg(job.source, outcome.message));
        return;
    }
    if (outcome.result == Result::Skipped) {
        if (m_printsLines) {
            print(stdout, QStringLiteral("%1: skipped: %2").arg(job.source, outcome.message));
        }
        return;
    }
    if (m_printsLines) {
        const QString line = QStringLiteral("%1 -> %2").arg(job.source, job.output);
        print(stdout, m_verbosity == Verbosity::Verbose ? line + details(outcome) : line);
    }
    if (!outcome.message.isEmpty()) {
        print(stderr, QStringLiteral("%1: warning: %2").arg(job.source, outcome.message));
    }
}

void Progress::print(std::FILE *stream, const QString &line)
{
    clearLine();
    write(stream, graphics::escapeControlCharacters(line) + '\n');
    m_sinceRefresh.invalidate();
}

void Progress::clearLine() const
{
    if (m_showsProgress) {
        write(stderr, QString::fromLatin1(clearToEnd));
    }
}

void Progress::refresh()
{
    if (m_showsProgress && (!m_sinceRefresh.isValid() || m_sinceRefresh.elapsed() >= refreshInterval)) {
        write(stderr, QString::fromLatin1(clearToEnd) + progressText(m_counts, seconds()));
        m_sinceRefresh.start();
    }
}

void Progress::printNotice(const QString &notice)
{
    print(stderr, notice);
}

void Progress::finish()
{
    if (m_verbosity != Verbosity::Quiet) {
        print(stdout, summaryText(m_counts, seconds()));
    }
}

void printProblem(const QString &problem)
{
    write(stderr, QStringLiteral("grisal-batch: ") + graphics::escapeControlCharacters(problem) + '\n');
}

} // namespace grisal::batch
