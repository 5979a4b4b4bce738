// SPDX-License-Identifier: MIT
#include "batch/OutputPlan.h"

#include "batch/OutputNames.h"
#include "batch/Paths.h"

#include <QFile>
#include <QHash>
#include <QLatin1String>

#include <sys/stat.h>

#include <cstddef>
#include <optional>
#include <utility>

namespace grisal::batch
{

namespace
{

constexpr qsizetype maxListedProblems = 20;

constexpr QLatin1String remedy("choose another folder with -o, or other names with --name");

/// Device and inode of a file.
using Identity = std::pair<quint64, quint64>;

std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? std::optional(status) : std::nullopt;
}

std::optional<Identity> identityOf(const QString &path)
{
    const auto status = statusOf(path);
    return status ? std::optional(Identity(status->st_dev, status->st_ino)) : std::nullopt;
}

class Planner
{
public:
    Planner(const std::vector<Source> &sources, const Options &options) : m_sources(sources), m_options(options) {}

    OutputPlan plan()
    {
        checkFolder();
        nameOutputs();
        checkPaths();
        checkIdentities();
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
    void checkPaths();
    void checkIdentities();
    void makeJobs();
    QHash<Identity, std::size_t> existingOutputs() const;

    void addProblem(const QString &problem)
    {
        ++m_problemCount;
        if (m_problemCount <= maxListedProblems) {
            m_plan.problems.append(problem);
        }
    }

    const std::vector<Source> &m_sources;
    const Options &m_options;
    QHash<QString, std::size_t> m_sourceOfPath; ///< by absolute path
    std::vector<Output> m_outputs;              ///< as many as sources
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
    m_sourceOfPath.reserve(static_cast<qsizetype>(m_sources.size()));
    for (const Source &source : m_sources) {
        m_sourceOfPath.insert(source.absolute, m_outputs.size());
        m_outputs.push_back(names.outputFor(source));
    }
}

void Planner::checkPaths()
{
    QHash<QString, std::size_t> known;
    known.reserve(static_cast<qsizetype>(m_sources.size()));
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        const Output &output = m_outputs[i];
        if (const auto source = m_sourceOfPath.constFind(output.absolute); source != m_sourceOfPath.constEnd()) {
            addProblem(QStringLiteral("The output of %1 would overwrite the source %2; %3.")
                           .arg(quoted(m_sources[i].path), quoted(m_sources[*source].path), remedy));
        }
        if (const auto other = known.constFind(output.absolute); other != known.constEnd()) {
            addProblem(QStringLiteral("%1 and %2 would have the same output %3; convert them in separate runs with "
                                      "different folders (-o) or names (--name).")
                           .arg(quoted(m_sources[*other].path), quoted(m_sources[i].path), quoted(output.path)));
        } else {
            known.insert(output.absolute, i);
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

/// The outputs that exist, without those that checkPaths() reports.
QHash<Identity, std::size_t> Planner::existingOutputs() const
{
    QHash<Identity, std::size_t> existing;
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        if (!m_sourceOfPath.contains(m_outputs[i].absolute)) {
            if (const std::optional<Identity> identity = identityOf(m_outputs[i].path)) {
                existing.insert(*identity, i);
            }
        }
    }
    return existing;
}

void Planner::makeJobs()
{
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        if (contains(m_options.shard, m_sources[i].path)) {
            m_plan.jobs.push_back({m_sources[i].path, m_outputs[i].path});
        }
    }
}

} // namespace

OutputPlan planOutputs(const std::vector<Source> &sources, const Options &options)
{
    return Planner(sources, options).plan();
}

} // namespace grisal::batch
