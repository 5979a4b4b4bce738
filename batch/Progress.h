// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Outcome.h"
#include "batch/OutputPlan.h"

#include <QElapsedTimer>
#include <QString>

#include <cstddef>
#include <cstdio>

namespace grisal::batch
{

/// How much is printed: failures only, progress, or a line with details for each picture as well.
enum class Verbosity { Quiet, Normal, Verbose };

/// The number of pictures by their results.
struct Counts {
    std::size_t total = 0;
    std::size_t done = 0;
    std::size_t skipped = 0;
    std::size_t failed = 0;

    std::size_t finished() const { return done + skipped + failed; }
    void add(Result result);
};

/// The text of the progress line, for example "12/300, 96 pictures a minute, 3 min left, 1 failed". The speed is that
/// of the pictures that were converted; speed and time are left out before the first one.
QString progressText(const Counts &counts, double seconds);

/// The text at the end, for example "300 pictures: 298 done, 1 skipped, 1 failed, in 12 s".
QString summaryText(const Counts &counts, double seconds);

/// Which of the standard streams are terminals.
struct Terminals {
    bool output;
    bool errors;

    /// Of this process.
    static Terminals detect();
};

/// Prints what happens to the pictures: failures and warnings to standard error; on a terminal a line of progress,
/// which is overwritten; a line for each picture to standard output, unless it is a terminal with a line of progress.
class Progress
{
public:
    Progress(std::size_t total, Verbosity verbosity, Terminals terminals = Terminals::detect());

    void add(const Job &job, const Outcome &outcome);

    /// Updates the line of progress. To be called a few times a second.
    void refresh();

    /// Prints a sentence to standard error.
    void printNotice(const QString &notice);

    /// Prints the summary.
    void finish();

    const Counts &counts() const { return m_counts; }

private:
    void print(std::FILE *stream, const QString &line);
    void clearLine() const;
    double seconds() const;

    Counts m_counts;
    Verbosity m_verbosity;
    bool m_showsProgress; ///< a line of progress
    bool m_printsLines;   ///< a line for each picture
    QElapsedTimer m_time;
    QElapsedTimer m_sinceRefresh;
};

/// Prints a problem to standard error, with the name of the program in front.
void printProblem(const QString &problem);

} // namespace grisal::batch
