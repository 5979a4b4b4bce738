// SPDX-License-Identifier: MIT
#pragma once

class QOpenGLWidget;

namespace grisal::ui
{

/// Calls `slot` of the widget, named as for SLOT(), before its GL context ends. In a file of its own because the
/// toolkit's header for contexts and GLEW do not go together.
void callBeforeContextEnds(QOpenGLWidget *widget, const char *slot);

} // namespace grisal::ui
