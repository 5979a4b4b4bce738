// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace grisal::batch
{

/// Functions on paths as texts; none of them reads the disk. QDir and QFileInfo would treat names that start with a
/// colon as resources of the program.

/// The path without superfluous parts ("//", ".", "..") and without a slash at its end. Only a relative path may start
/// with ".." then.
QString cleaned(const QString &path);

/// The cleaned absolute path. `current` is the absolute path of the folder that relative paths start from.
QString absolutePath(const QString &path, const QString &current);

/// The folder of a file, with a slash at its end; empty for a name without folder.
QString folderOf(const QString &path);

/// The name of a file without its folder.
QString nameOf(const QString &path);

/// The path without slashes at its end; that of the root is "/".
QString withoutLastSlash(const QString &path);

/// The path for QFile and other classes of Qt, with "./" in front of a colon at its start.
QString pathForQt(const QString &path);

/// A name in a folder. An empty folder gives the name alone.
QString joined(const QString &folder, const QString &name);

/// A path for a message: in quotes, with control characters escaped.
QString quoted(const QString &path);

/// A sentence about a source that Qt cannot open: its name is not valid UTF-8. `path` is the name as Qt decodes it.
QString warningOfInvalidName(const QString &path);

} // namespace grisal::batch
