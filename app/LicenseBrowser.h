// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// A text browser for plain text: shows the file passed to setSource() line by line, as UTF-8. QTextBrowser would treat
/// every file as HTML and join the lines.
class LicenseBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
