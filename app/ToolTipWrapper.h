// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

/// The text of a tool tip in lines of about 60 characters; a shorter text is returned unchanged. Qt shows a plain text
/// in one line, however long it is. The text may be plain or rich.
QString wrappedToolTip(const QString &text);

/// Shows the tool tips of all widgets with wrappedToolTip(). To be installed as an event filter of the application.
class ToolTipWrapper : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override;
};
