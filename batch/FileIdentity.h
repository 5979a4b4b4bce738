// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <sys/stat.h>

#include <optional>
#include <utility>

namespace grisal::batch
{

/// Device and inode of a file. Two paths with the same identity lead to the same file, for example through a link.
using Identity = std::pair<quint64, quint64>;

/// The status of the file at the end of all links; no value if there is none, or if it cannot be examined.
std::optional<struct stat> statusOf(const QString &path);

/// The identity of the same file.
std::optional<Identity> identityOf(const QString &path);

/// Keys of the paths of files that may be missing. Two paths have the same key if they have the same name in the same
/// folder, also where the paths of the folder differ because of links. A missing folder is compared by its path below
/// the last folder that exists. Examines each folder once.
class PathKeys
{
public:
    QString keyOf(const QString &path);

private:
    QString keyOfFolder(const QString &folder);
    QString newKeyOfFolder(const QString &folder);

    QHash<QString, QString> m_keys; ///< by the path of the folder; with a slash at their ends
};

} // namespace grisal::batch
