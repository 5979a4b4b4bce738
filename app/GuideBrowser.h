// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// A text browser that shows a picture sharply on a dense screen, where there is a second one of it at twice the
/// density: name@2x.png beside name.png. The toolkit's own finds such pictures for icons only. Going forward leads to
/// the place that the link led to; the toolkit's own shows the link instead.
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
