// SPDX-License-Identifier: MIT
#include "app/DroppedImages.h"

#include "graphics/files/ImageFile.h"

#include <QMimeData>
#include <QUrl>

namespace grisal
{

QStringList droppedImages(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile() && graphics::ImageFile(url.toLocalFile()).problem().isEmpty()) {
            paths << url.toLocalFile();
        }
    }
    return paths;
}

} // namespace grisal
