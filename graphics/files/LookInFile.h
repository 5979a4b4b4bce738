// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

#include <QByteArray>
#include <QString>

namespace grisal::graphics
{

/// The text of the look in an image file.
struct LookInFile {
    QByteArray text; ///< empty if the file has no look, or cannot be opened
    Message problem; ///< why the file cannot be opened as an image; empty if it can
};

/// Reads the look of an image file without its pixels. See ImageFile for the files that are accepted, and
/// Metadata::sourceLook() for the look.
LookInFile readLook(const QString &path);

} // namespace grisal::graphics
