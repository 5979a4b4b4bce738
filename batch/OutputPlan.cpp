// SPDX-License-Identifier: MIT
#include "batch/OutputPlan.h"

#include "batch/FileIdentity.h"
#include "batch/OutputNames.h"
#include "batch/Paths.h"
#include "batch/ReportCheck.h"
#include "graphics/files/LookInFile.h"

#include <QHash>
#include <QLatin1String>
#include <QSet>

#include <cstddef>
#include <optional>
#include <utility>

namespace grisal::batch
{

namespace
{

constexpr qsizetype maxListedProblems = 20;

constexpr QLatin1String remedy("choose another folder with -o, or other names with --name");
constexpr QLatin1String remedyForTwo("convert them in separate runs with different folders (-o) or names (--name)");

bool hasLook(const QString &path)
{
    return !graphics::readLook(path).text.isEmpty();
}

/// What a picture is to a shard: independent of the current folder and of how the searched folder is spelled.
QString pathInList(const Source &source)
{
    return joined(source.subfolder, nameOf(source.absolute));
}

class Planner
{
public:
    Planner(std::vector<Source> sources, const Options &options) : m_sources(std::move(sources)), m_options(options) {}

    OutputPlan plan()
    {
        checkFolder();
        nameOutputs();
        leaveOutEarlierOutputs();
        checkPaths();
        checkIdentities();
        checkReport();
        if (m_problemCount > maxListedProblems) {
            m_plan.problems.append(
                QStringLiteral("Further problems that are not listed: %1.").arg(m_problemCount - maxListedProblems));
        } else if (m_problemCount == 0) {
            makeJobs();
        }
        return std::move(m_plan);
    }

private:
    void checkFolder();
    void nameOutputs();
    void leaveOutEarlierOutputs();
    void checkPaths();
    void checkIdentities();
    void checkReport();
    void makeJobs();
    QHash<Identity, std::size_t> existingOutputs();

    void addProblem(const QString &problem)
    {
        ++m_problemCount;
        if (m_problemCount <= maxListedProblems) {
            m_plan.problems.append(problem);
        }
    }

    std::vector<Source> m_sources;
    const Options &m_options;
    std::vector<Output> m_outputs;  ///< as many as sources
    std::vector<bool> m_hasOwnPath; ///< whether an output has neither the path of a source nor that of another output
    qsizetype m_problemCount = 0;
    OutputPlan m_plan;
};

void Planner::checkFolder()
{
    const auto status = statusOf(m_options.outputDir);
    if (status && !S_ISDIR(status->st_mode)) {
        addProblem(QStringLiteral("%1 is a file, but -o needs a folder.").arg(quoted(m_options.outputDir)));
    }
}

void Planner::nameOutputs()
{
    const OutputNames names(m_options);
    m_outputs.reserve(m_sources.size());
    for (const Source &source : m_sources) {
        m_outputs.push_back(names.outputFor(source));
    }
}

void Planner::leaveOutEarlierOutputs()
{
    QSet<QString> outputsOfOthers;
    outputsOfOthers.reserve(static_cast<qsizetype>(m_sources.size()));
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        if (m_outputs[i].absolute != m_sources[i].absolute) {
            outputsOfOthers.insert(m_outputs[i].absolute);
        }
    }
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        if (!outputsOfOthers.contains(m_sources[i].absolute) || !hasLook(m_sources[i].path)) {
            std::swap(m_sources[kept], m_sources[i]);
            std::swap(m_outputs[kept], m_outputs[i]);
            ++kept;
        }
    }
    m_sources.resize(kept);
    m_outputs.resize(kept);
}

void Planner::checkPaths()
{
    QHash<QString, std::size_t> sourceOfPath;
    QHash<QString, std::size_t> outputOfKey;
    PathKeys keys;
    sourceOfPath.reserve(static_cast<qsizetype>(m_sources.size()));
    outputOfKey.reserve(static_cast<qsizetype>(m_sources.size()));
    m_hasOwnPath.resize(m_sources.size(), true);
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        sourceOfPath.insert(m_sources[i].absolute, i);
    }
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        const Output &output = m_outputs[i];
        if (const auto source = sourceOfPath.constFind(output.absolute); source != sourceOfPath.constEnd()) {
            m_hasOwnPath[i] = false;
            addProblem(QStringLiteral("The output of %1 would overwrite the source %2; %3.")
                           .arg(quoted(m_sources[i].path), quoted(m_sources[*source].path), remedy));
        }
        const QString key = keys.keyOf(output.path);
        if (const auto other = outputOfKey.constFind(key); other != outputOfKey.constEnd()) {
            m_hasOwnPath[i] = false;
            addProblem(
                QStringLiteral("%1 and %2 would have the same output %3; %4.")
                    .arg(quoted(m_sources[*other].path), quoted(m_sources[i].path), quoted(output.path), remedyForTwo));
        } else {
            outputOfKey.insert(key, i);
        }
    }
}

// A first run finds no outputs and does not read the identity of any source.
void Planner::checkIdentities()
{
    const QHash<Identity, std::size_t> existing = existingOutputs();
    if (existing.isEmpty()) {
        return;
    }
    for (const Source &source : m_sources) {
        const std::optional<Identity> identity = identityOf(source.path);
        const auto output = identity ? existing.constFind(*identity) : existing.constEnd();
        if (output != existing.constEnd()) {
            addProblem(QStringLiteral("%1, the output of %2, is the same file as the source %3; %4.")
                           .arg(quoted(m_outputs[*output].path), quoted(m_sources[*output].path), quoted(source.path),
                                remedy));
        }
    }
}

/// The outputs that exist, without those that checkPaths() reports. Reports those that are the same file.
QHash<Identity, std::size_t> Planner::existingOutputs()
{
    QHash<Identity, std::size_t> existing;
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        const std::optional<Identity> identity = m_hasOwnPath[i] ? identityOf(m_outputs[i].path) : std::nullopt;
        if (!identity) {
            continue;
        }
        if (const auto other = existing.constFind(*identity); other != existing.constEnd()) {
            addProblem(QStringLiteral("%1 and %2, the outputs of %3 and %4, are the same file; %5.")
                           .arg(quoted(m_outputs[*other].path), quoted(m_outputs[i].path),
                                quoted(m_sources[*other].path), quoted(m_sources[i].path), remedyForTwo));
        } else {
            existing.insert(*identity, i);
        }
    }
    return existing;
}

void Planner::checkReport()
{
    const QString problem = problemOfReport(m_options, m_sources, m_outputs);
    if (!problem.isEmpty()) {
        addProblem(problem);
    }
}

void Planner::makeJobs()
{
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        if (contains(m_options.shard, pathInList(m_sources[i]))) {
            m_plan.jobs.push_back({m_sources[i].path, m_outputs[i].path});
        }
    }
}

} // namespace

OutputPlan planOutputs(std::vector<Source> sources, const Options &options)
{
    return Planner(std::move(sources), options).plan();
}

} // namespace grisal::batch
