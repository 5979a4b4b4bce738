// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QMimeData;

namespace grisal
{

/// Returns the paths of the local files in dragged data that are JPEG, PNG or TIFF images by their contents, in the
/// order of the data.
QStringList droppedImages(const QMimeData &data);

} // namespace grisal
