// SPDX-License-Identifier: MIT
#include "ui/StatusTip.h"

#include <QCoreApplication>
#include <QStatusTipEvent>
#include <QWidget>

void showStatusTip(QWidget &widget, const QString &text)
{
    QStatusTipEvent event(text);
    QCoreApplication::sendEvent(&widget, &event);
}
