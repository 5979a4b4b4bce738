// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace grisal::test
{

/// The folder of real and hostile images, from the environment variable GRISAL_CORPUS; empty if it is not set. These
/// files are too many and too large for the source tree: tests that need them are skipped if they are missing.
QString corpusFolder();

/// The real images that GraphicsMagick reads, some with a warning.
QStringList realPictures();

/// The hostile files of the corpus and those that its program writes into `folder`: broken and malicious files, pipes,
/// sockets, links to devices, files with unusual names.
QStringList hostileFiles(const QString &folder);

} // namespace grisal::test
