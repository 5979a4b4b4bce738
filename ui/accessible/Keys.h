// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

class QKeyEvent;

/// Whether a key is pressed without Control and the like, which make a command of the window of it. The Shift key is
/// none of these.
bool isPlain(const QKeyEvent &event);

/// Where an arrow key points: one step to the right or to the left, down or up. Nowhere for other keys, and for those
/// that are not plain.
QPoint arrowOf(const QKeyEvent &event);

/// What Page Up and Page Down stand for where there is a mouse wheel to be turned: a notch forwards or backwards, in
/// eighths of a degree. 0 for other keys.
int wheelTurnOf(const QKeyEvent &event);
