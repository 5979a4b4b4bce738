// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

class QKeyEvent;

/// Whether a key is pressed without Control and other modifiers that turn it into a command of the window. Shift is
/// allowed.
bool isPlain(const QKeyEvent &event);

/// The direction of an arrow key: one step right, left, down or up. Null for other keys and with modifiers (see
/// isPlain()).
QPoint arrowOf(const QKeyEvent &event);

/// The wheel turn that Page Up and Page Down stand for: one notch forwards or backwards, in eighths of a degree. 0 for
/// other keys.
int wheelTurnOf(const QKeyEvent &event);
