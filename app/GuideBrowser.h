// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// A text browser that shows images sharply on high-DPI screens if there is a second version with twice the resolution:
/// name@2x.png beside name.png. Qt looks for such versions only for icons. forward() goes to the target of the link;
/// QTextBrowser's goes to the link itself.
class GuideBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

public slots:
    void forward() override;

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
