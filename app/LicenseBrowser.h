// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// A text browser for plain text: what setSource() names is shown as it stands, line by line, in UTF-8. The toolkit's
/// own takes every file for HTML and would run the lines together.
class LicenseBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
