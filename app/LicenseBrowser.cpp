// SPDX-License-Identifier: MIT
#include "app/LicenseBrowser.h"

QVariant LicenseBrowser::loadResource(int type, const QUrl &name)
{
    const QString text = QString::fromUtf8(QTextBrowser::loadResource(type, name).toByteArray());
    return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}
