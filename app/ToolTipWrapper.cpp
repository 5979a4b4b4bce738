// SPDX-License-Identifier: MIT
#include "app/ToolTipWrapper.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

#include <cmath>

// Of the text elements in Qt's rich text, only table cells have a width.
QString wrappedToolTip(const QString &text)
{
    constexpr double widest = 60;
    const bool rich = Qt::mightBeRichText(text);
    QTextDocument document;
    document.setDefaultFont(QToolTip::font());
    if (rich) {
        document.setHtml(text);
    } else {
        document.setPlainText(text);
    }
    const double width = widest * QFontMetricsF(QToolTip::font()).averageCharWidth();
    if (document.idealWidth() <= width) {
        return text;
    }
    return QStringLiteral("<table width=\"%1\"><tr><td>%2</td></tr></table>")
        .arg(std::lround(width))
        .arg(rich ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
}

bool ToolTipWrapper::eventFilter(QObject *object, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (event->type() != QEvent::ToolTip || widget == nullptr || widget->toolTip().isEmpty()) {
        return QObject::eventFilter(object, event);
    }
    const QPoint place = static_cast<QHelpEvent *>(event)->globalPos();
    QToolTip::showText(place, wrappedToolTip(widget->toolTip()), widget, {}, widget->toolTipDuration());
    return true;
}
