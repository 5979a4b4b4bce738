// SPDX-License-Identifier: MIT
#pragma once

class QOpenGLWidget;

namespace grisal::ui
{

/// Calls `slot` of the widget, named as for SLOT(), before its GL context is destroyed. In its own file, because Qt's
/// header for contexts and GLEW cannot be included together.
void callBeforeContextEnds(QOpenGLWidget *widget, const char *slot);

} // namespace grisal::ui
