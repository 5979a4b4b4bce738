// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pictures.h"

#include <QPoint>

class QOpenGLWidget;
class QWidget;

namespace grisal::test
{

/// The part of the screen inside a widget, in device pixels, grabbed from the root window: a grab of the widget itself
/// can look right while the screen stays black.
BytePixels grabScreen(const QWidget &widget);

/// Processes events and grabs the screen repeatedly until it shows `expected` inside the widget, for at most twenty
/// seconds. Returns the last grab.
BytePixels grabScreenOnceEqual(const QWidget &widget, const BytePixels &expected);

/// Repaints the widget and waits until the frame is on the screen; returns false if it is not after twenty seconds.
bool repaintAndWait(QOpenGLWidget &widget);

} // namespace grisal::test
