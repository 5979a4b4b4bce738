// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Outcome.h"
#include "batch/OutputPlan.h"

#include <QFile>
#include <QString>

namespace grisal::batch
{

/// The file of --report: a line of JSON for each picture, written as soon as the picture is finished. Besides the keys
/// of toJson(), it has "source" and "output".
class Report
{
public:
    /// Replaces the file. No report is written if the path is empty.
    explicit Report(const QString &path);

    void add(const Job &job, const Outcome &outcome);

    /// Why the report is missing or incomplete, a sentence in English; empty if it is complete.
    const QString &problem() const { return m_problem; }

private:
    void check(bool succeeded);

    QFile m_file;
    QString m_problem;
};

} // namespace grisal::batch
