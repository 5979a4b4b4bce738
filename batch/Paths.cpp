// SPDX-License-Identifier: MIT
#include "batch/Paths.h"

#include "graphics/ControlCharacters.h"

#include <QDir>

namespace grisal::batch
{

// QDir::cleanPath() keeps ".." at the root, which is the root itself.
QString cleaned(const QString &path)
{
    QString result = QDir::cleanPath(path);
    while (result.startsWith(QStringLiteral("/../"))) {
        result.remove(0, 3);
    }
    return result == QStringLiteral("/..") ? QStringLiteral("/") : result;
}

QString absolutePath(const QString &path, const QString &current)
{
    return cleaned(path.startsWith(u'/') ? path : joined(current, path));
}

QString folderOf(const QString &path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString withoutLastSlash(const QString &path)
{
    qsizetype size = path.size();
    while (size > 1 && path.at(size - 1) == u'/') {
        --size;
    }
    return path.left(size);
}

QString pathForQt(const QString &path)
{
    return path.startsWith(u':') ? QStringLiteral("./") + path : path;
}

QString joined(const QString &folder, const QString &name)
{
    return folder.isEmpty() || folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString quoted(const QString &path)
{
    return u'\'' + graphics::escapeControlCharacters(path) + u'\'';
}

QString warningOfInvalidName(const QString &path)
{
    return QStringLiteral("%1 is left out, because its name is not valid UTF-8; please rename it.").arg(quoted(path));
}

} // namespace grisal::batch
