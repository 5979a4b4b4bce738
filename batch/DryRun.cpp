// SPDX-License-Identifier: MIT
#include "batch/DryRun.h"

#include "batch/FileIdentity.h"
#include "graphics/ControlCharacters.h"
#include "graphics/files/ImageFile.h"

#include <cstdio>

namespace grisal::batch
{

namespace
{

void print(std::FILE *stream, const QString &line)
{
    std::fputs((graphics::escapeControlCharacters(line) + u'\n').toLocal8Bit().constData(), stream);
}

/// Why a picture would fail; empty if no reason is known.
QString problemOf(const Job &job, bool outputExists, IfExists ifExists)
{
    if (outputExists && ifExists == IfExists::Error) {
        return QStringLiteral("%1 exists").arg(job.output);
    }
    const graphics::ImageFile source(job.source);
    return source.problem().isEmpty() ? QString() : source.problem().english();
}

/// Prints a line; returns whether the picture would fail.
bool showJob(const Job &job, IfExists ifExists)
{
    const bool exists = statusOf(job.output).has_value();
    const QString line = QStringLiteral("%1 -> %2").arg(job.source, job.output);
    if (exists && ifExists == IfExists::Skip) {
        print(stdout, QStringLiteral("%1: skipped: %2 exists").arg(job.source, job.output));
    } else if (exists && ifExists == IfExists::Update) {
        print(stdout, line + QStringLiteral(" (unless it is up to date)"));
    } else if (const QString problem = problemOf(job, exists, ifExists); !problem.isEmpty()) {
        print(stderr, QStringLiteral("%1: %2").arg(job.source, problem));
        return true;
    } else {
        print(stdout, line);
    }
    return false;
}

} // namespace

ExitStatus showPlan(const std::vector<Job> &jobs, IfExists ifExists)
{
    ExitStatus status = AllDone;
    for (const Job &job : jobs) {
        if (showJob(job, ifExists)) {
            status = SomeFailed;
        }
    }
    return status;
}

} // namespace grisal::batch
