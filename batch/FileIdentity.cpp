// SPDX-License-Identifier: MIT
#include "batch/FileIdentity.h"

#include "batch/Paths.h"

#include <QFile>

namespace grisal::batch
{

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

QString PathKeys::keyOf(const QString &path)
{
    return keyOfFolder(withoutLastSlash(folderOf(path))) + nameOf(path);
}

QString PathKeys::keyOfFolder(const QString &folder)
{
    const auto known = m_keys.constFind(folder);
    if (known != m_keys.constEnd()) {
        return *known;
    }
    QString key = newKeyOfFolder(folder);
    m_keys.insert(folder, key);
    return key;
}

// The root and the current folder, which has an empty path, end the recursion even if they cannot be examined.
QString PathKeys::newKeyOfFolder(const QString &folder)
{
    const auto identity = identityOf(folder.isEmpty() ? QStringLiteral(".") : folder);
    if (identity) {
        return QStringLiteral("%1:%2/").arg(identity->first).arg(identity->second);
    }
    return folder.isEmpty() || folder == QStringLiteral("/") ? folder + u'/' : keyOf(folder) + u'/';
}

} // namespace grisal::batch
