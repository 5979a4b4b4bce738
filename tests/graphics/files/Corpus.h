// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace grisal::test
{

/// The folder of pictures, real and hostile, that the environment variable GRISAL_CORPUS names; empty without it. They
/// are too many and too large to come with the sources: a test that needs them is skipped where they are missing.
QString corpusFolder();

/// The real images that GraphicsMagick is known to read, some with a warning.
QStringList realPictures();

/// The hostile files, those of the folder and those that its own program writes into `folder`: broken and malicious
/// files, pipes, sockets, links to devices, files with unusual names.
QStringList hostileFiles(const QString &folder);

} // namespace grisal::test
