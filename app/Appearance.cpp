// SPDX-License-Identifier: MIT
#include "app/Appearance.h"

#include <QApplication>
#include <QIcon>

Appearance::Appearance()
{
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/Icons/Icons/grisal.png")));
    qApp->installEventFilter(&m_toolTips);
}
