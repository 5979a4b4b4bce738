// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QMimeData;

namespace grisal
{

/// Returns the paths of the local files in dragged data that start like JPEG, PNG or TIFF files, in the order of the
/// data.
QStringList droppedImages(const QMimeData &data);

} // namespace grisal
