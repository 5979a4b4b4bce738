// SPDX-License-Identifier: MIT
#include "batch/SourceList.h"

#include "batch/FolderSearch.h"
#include "batch/Paths.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <filesystem>
#include <system_error>

namespace grisal::batch
{

namespace
{

// Not with QFileInfo: see batch/Paths.h.
bool isFolder(const QString &path)
{
    std::error_code error;
    return std::filesystem::is_directory(QFile::encodeName(path).toStdString(), error);
}

QStringList entriesIn(const QByteArray &list, bool nulSeparated, QStringList &warnings)
{
    QStringList entries;
    const char separator = nulSeparated ? '\0' : '\n';
    for (qsizetype start = 0; start < list.size();) {
        const qsizetype found = list.indexOf(separator, start);
        const qsizetype end = found < 0 ? list.size() : found;
        const bool hasReturn = !nulSeparated && end > start && list.at(end - 1) == '\r';
        const QByteArray entry = list.mid(start, end - start - (hasReturn ? 1 : 0));
        const QString name = QFile::decodeName(entry);
        if (QFile::encodeName(name) != entry) {
            warnings.append(warningOfInvalidName(name));
        } else if (!entry.isEmpty()) {
            entries.append(name);
        }
        start = end + 1;
    }
    return entries;
}

/// The longest folder that all absolute paths among `entries` have in common, with a slash at its end; empty if there
/// is none.
QString commonFolder(const QStringList &entries)
{
    QString common;
    for (const QString &entry : entries) {
        if (!entry.startsWith(u'/')) {
            continue;
        }
        const QString folder = folderOf(cleaned(entry));
        if (common.isEmpty()) {
            common = folder;
        }
        while (!folder.startsWith(common)) {
            common = folderOf(common.chopped(1));
        }
    }
    return common;
}

/// Whether a cleaned relative path leads out of its folder.
bool leadsOut(const QString &path)
{
    return path == QStringLiteral("..") || path.startsWith(QStringLiteral("../"));
}

class SourceLister
{
public:
    explicit SourceLister(const Options &options) : m_options(options), m_current(QDir::currentPath()) {}

    SourceList list(QIODevice &standardInput)
    {
        for (const QString &operand : m_options.invalidSources) {
            m_list.warnings.append(warningOfInvalidName(operand));
        }
        for (const QString &operand : m_options.sources) {
            addOperand(operand);
        }
        if (!m_options.filesFrom.isEmpty() && m_list.error.isEmpty()) {
            addEntries(entriesIn(readList(standardInput), m_options.nulSeparated, m_list.warnings));
        }
        return std::move(m_list);
    }

private:
    void addOperand(const QString &path)
    {
        if (!isFolder(path)) {
            add(path, {});
        } else if (m_options.recursive) {
            addFolder(path);
        } else {
            fail(QStringLiteral("%1 is a folder; use -r to convert the pictures in it, or leave it out.")
                     .arg(quoted(path)));
        }
    }

    void addFolder(const QString &folder)
    {
        const qsizetype start = joined(folder, {}).size();
        for (const QString &path : findImages(folder, m_options.outputDir, m_list.warnings)) {
            add(path, withoutLastSlash(folderOf(path.mid(start))));
        }
    }

    QByteArray readList(QIODevice &standardInput)
    {
        if (m_options.filesFrom == QStringLiteral("-")) {
            return standardInput.readAll();
        }
        QFile file(pathForQt(m_options.filesFrom));
        QByteArray list = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (file.error() != QFileDevice::NoError) {
            fail(QStringLiteral("Cannot read the list %1 of --files-from: %2.")
                     .arg(quoted(m_options.filesFrom), file.errorString()));
        }
        return list;
    }

    void addEntries(const QStringList &entries)
    {
        const qsizetype commonSize = keepsFolders() ? commonFolder(entries).size() : 0;
        for (const QString &entry : entries) {
            add(entry, keepsFolders() ? subfolderOf(entry, commonSize) : QString());
        }
    }

    bool keepsFolders() const { return m_options.recursive && !m_options.outputDir.isEmpty(); }

    QString subfolderOf(const QString &entry, qsizetype commonSize)
    {
        const QString path = cleaned(entry);
        if (leadsOut(path)) {
            fail(QStringLiteral("%1 in the list of --files-from leads out of the current folder, so that -r cannot "
                                "keep its folders; leave out -r, or list its absolute path.")
                     .arg(quoted(entry)));
            return {};
        }
        return withoutLastSlash(folderOf(path.startsWith(u'/') ? path.mid(commonSize) : path));
    }

    void add(const QString &path, const QString &subfolder)
    {
        const QString absolute = absolutePath(path, m_current);
        const qsizetype before = m_known.size();
        m_known.insert(absolute);
        if (m_known.size() > before) {
            m_list.sources.push_back({withoutLastSlash(path), absolute, subfolder});
        }
    }

    void fail(const QString &error)
    {
        if (m_list.error.isEmpty()) {
            m_list.error = error;
        }
    }

    const Options &m_options;
    QString m_current;
    QSet<QString> m_known; ///< absolute paths
    SourceList m_list;
};

} // namespace

SourceList listSources(const Options &options, QIODevice &standardInput)
{
    return SourceLister(options).list(standardInput);
}

} // namespace grisal::batch
