// SPDX-License-Identifier: MIT
#include "ui/accessible/Keys.h"

#include <QKeyEvent>

bool isPlain(const QKeyEvent &event)
{
    return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

QPoint arrowOf(const QKeyEvent &event)
{
    if (!isPlain(event)) {
        return {};
    }
    switch (event.key()) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

int wheelTurnOf(const QKeyEvent &event)
{
    constexpr int notch = 120;
    switch (event.key()) {
    case Qt::Key_PageUp:
        return notch;
    case Qt::Key_PageDown:
        return -notch;
    default:
        return 0;
    }
}
