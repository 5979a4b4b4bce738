// SPDX-License-Identifier: MIT
#include "batch/Program.h"

#include "batch/DryRun.h"
#include "batch/Progress.h"
#include "batch/RequestedLook.h"
#include "batch/SourceList.h"
#include "graphics/look/LookText.h"

#include <cstdio>
#include <utility>

namespace grisal::batch
{

namespace
{

void print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
}

/// The status of a run that only prints: a text that is cut short must not count as complete.
ExitStatus printed(ExitStatus status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return status;
    }
    printProblem(QStringLiteral("standard output cannot be written"));
    return SomeFailed;
}

ExitStatus showLook(const QString &path)
{
    QString problem;
    const std::optional<graphics::Look> look = lookOfFile(path, problem);
    if (!look) {
        printProblem(problem);
        return WrongUsage;
    }
    std::fputs(graphics::lookText(*look, graphics::LookFormat::Indented).constData(), stdout);
    return printed(AllDone);
}

ExitStatus convert(const Options &options, QIODevice &standardInput)
{
    QString problem;
    const std::optional<graphics::Look> look = requestedLook(options, problem);
    if (!look) {
        printProblem(problem);
        return WrongUsage;
    }
    SourceList list = listSources(options, standardInput);
    if (!list.error.isEmpty()) {
        printProblem(list.error);
        return WrongUsage;
    }
    for (const QString &warning : list.warnings) {
        printProblem(warning);
    }
    const OutputPlan plan = planOutputs(std::move(list.sources), options);
    for (const QString &found : plan.problems) {
        printProblem(found);
    }
    if (!plan.problems.isEmpty()) {
        return WrongUsage;
    }
    const ExitStatus status =
        options.dryRun ? printed(showPlan(plan.jobs, options.ifExists)) : convertAll(plan.jobs, *look, options);
    return status == AllDone && !list.warnings.isEmpty() ? SomeFailed : status;
}

} // namespace

ExitStatus run(const QStringList &arguments, QIODevice &standardInput, const QStringList &invalid)
{
    const auto parsed = parseOptions(arguments, invalid);
    if (const auto *exit = std::get_if<EarlyExit>(&parsed)) {
        std::fputs(exit->text.toLocal8Bit().constData(), exit->status == AllDone ? stdout : stderr);
        return exit->status;
    }
    const auto &options = std::get<Options>(parsed);
    if (options.listFilms) {
        print(filmNames());
        return printed(AllDone);
    }
    return options.showLook.isEmpty() ? convert(options, standardInput) : showLook(options.showLook);
}

} // namespace grisal::batch
