// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pictures.h"

#include <QPoint>

class QWidget;

namespace grisal::test
{

/// What the screen shows inside a widget, in device pixels, taken from the root window: a widget's own grab can look
/// right while the screen stays black.
BytePixels onScreen(const QWidget &widget);

/// Grabs the screen again and again, events being processed, until it shows `expected` inside the widget or five
/// seconds are over. Returns the last grab.
BytePixels onScreenOnceLike(const QWidget &widget, const BytePixels &expected);

} // namespace grisal::test
