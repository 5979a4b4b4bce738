// SPDX-License-Identifier: MIT
#include "batch/Report.h"

#include "batch/Paths.h"

#include <QDir>
#include <QJsonDocument>

namespace grisal::batch
{

Report::Report(const QString &path) : m_file(path.isEmpty() ? path : absolutePath(path, QDir::currentPath()))
{
    if (!path.isEmpty()) {
        check(m_file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    }
}

void Report::add(const Job &job, const Outcome &outcome)
{
    if (!m_file.isOpen()) {
        return;
    }
    QJsonObject line = toJson(outcome);
    line[QStringLiteral("source")] = job.source;
    line[QStringLiteral("output")] = job.output;
    m_file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    check(m_file.flush());
}

void Report::check(bool succeeded)
{
    if (!succeeded && m_problem.isEmpty()) {
        m_problem = QStringLiteral("the report %1 cannot be written: %2").arg(m_file.fileName(), m_file.errorString());
    }
}

} // namespace grisal::batch
