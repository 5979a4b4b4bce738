// SPDX-License-Identifier: MIT
#include "app/GuideBrowser.h"

#include <QImage>

void GuideBrowser::forward()
{
    if (isForwardAvailable()) {
        QTextBrowser::forward();
        scrollToAnchor(source().fragment());
    }
}

QVariant GuideBrowser::loadResource(int type, const QUrl &name)
{
    if (type == QTextDocument::ImageResource && devicePixelRatioF() > 1) {
        const QString path = source().resolved(name).path();
        QImage picture(QLatin1Char(':') + QString(path).replace(QLatin1String(".png"), QLatin1String("@2x.png")));
        if (!picture.isNull()) {
            picture.setDevicePixelRatio(2);
            return picture;
        }
    }
    return QTextBrowser::loadResource(type, name);
}
