// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

namespace grisal
{

/// Returns the paths of the URLs that name files on this computer, in their order. The others are left out: other
/// schemes and hosts, relative paths, paths that are too long for the system, and names that are not UTF-8, which Qt's
/// paths cannot contain.
QStringList localFiles(const QList<QUrl> &urls);

/// Whether there is no such file. False if that is unknown, because a folder on the path cannot be searched.
bool isMissing(const QString &path);

/// Returns the paths of the files that start like JPEG, PNG or TIFF files, in their order.
QStringList imagesAmong(const QStringList &paths);

} // namespace grisal
