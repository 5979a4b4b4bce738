// SPDX-License-Identifier: MIT
#include "app/DroppedImages.h"

#include "app/Session.h"

#include <QMimeData>
#include <QUrl>

namespace grisal
{

QStringList droppedImages(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile() && Session::startsLikeImage(url.toLocalFile())) {
            paths << url.toLocalFile();
        }
    }
    return paths;
}

} // namespace grisal
