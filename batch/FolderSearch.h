// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace grisal::batch
{

/// Searches a folder and all folders below it for files that start like an image, and returns their paths, sorted. They
/// start with `folder` as it is given. Hidden files and folders, links to folders, and the folder `leftOut` where it is
/// below `folder`, are left out; `leftOut` may be empty or missing. Adds a sentence to `warnings` for everything that
/// cannot be read.
QStringList findImages(const QString &folder, const QString &leftOut, QStringList &warnings);

} // namespace grisal::batch
