// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// Shows a text in the status bar of the widget's window until the next one; an empty text removes it. Has no effect in
/// a window without a status bar.
void showStatusTip(QWidget &widget, const QString &text);
