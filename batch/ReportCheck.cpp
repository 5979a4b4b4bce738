// SPDX-License-Identifier: MIT
#include "batch/ReportCheck.h"

#include "batch/FileIdentity.h"
#include "batch/Paths.h"

#include <QFile>

#include <algorithm>
#include <optional>

namespace grisal::batch
{

namespace
{

/// Compares paths with that of the report.
class ReportPath
{
public:
    explicit ReportPath(const QString &path) : m_key(m_keys.keyOf(path)), m_identity(identityOf(path)) {}

    bool isSameFileAs(const QString &path)
    {
        return !path.isEmpty() &&
               (m_keys.keyOf(path) == m_key || (m_identity.has_value() && identityOf(path) == m_identity));
    }

private:
    PathKeys m_keys;
    QString m_key;
    std::optional<Identity> m_identity;
};

/// Reports can also be written to pipes and devices, which are not read here.
bool isOtherFile(const QString &path)
{
    const auto status = statusOf(path);
    if (!status || !S_ISREG(status->st_mode) || status->st_size == 0) {
        return false;
    }
    QFile file(pathForQt(path));
    return !file.open(QIODevice::ReadOnly) || file.read(1) != "{";
}

} // namespace

QString problemOfReport(const Options &options, const std::vector<Source> &sources, const std::vector<Output> &outputs)
{
    if (options.report.isEmpty()) {
        return {};
    }
    ReportPath report(options.report);
    const QString problem = QStringLiteral("The report %1 would overwrite %2; choose another file for --report.");
    if (report.isSameFileAs(options.look)) {
        return problem.arg(quoted(options.report), QStringLiteral("the file of --look"));
    }
    if (report.isSameFileAs(options.filesFrom)) {
        return problem.arg(quoted(options.report), QStringLiteral("the file of --files-from"));
    }
    const auto isReport = [&](const auto &file) { return report.isSameFileAs(file.path); };
    const auto source = std::find_if(sources.begin(), sources.end(), isReport);
    if (source != sources.end()) {
        return problem.arg(quoted(options.report), QStringLiteral("the source ") + quoted(source->path));
    }
    const auto output = std::find_if(outputs.begin(), outputs.end(), isReport);
    if (output != outputs.end()) {
        return problem.arg(quoted(options.report), QStringLiteral("the output ") + quoted(output->path));
    }
    return isOtherFile(options.report)
               ? problem.arg(quoted(options.report), QStringLiteral("a file that is no earlier report"))
               : QString();
}

} // namespace grisal::batch
