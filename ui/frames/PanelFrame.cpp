// SPDX-License-Identifier: MIT
#include "ui/frames/PanelFrame.h"

#include <QPainter>
#include <QPainterPath>

// A filled path is closed at every scale. A line drawn with a pen, as by Qt's styles, is cut off where the edge lies
// between two device pixels.
void PanelFrame::paintEvent(QPaintEvent *)
{
    constexpr double opacity = 0.25;
    QColor colour = palette().color(QPalette::WindowText);
    colour.setAlphaF(opacity);
    const QRectF outer = rect();
    QPainterPath line;
    line.addRect(outer);
    line.addRect(outer.adjusted(1, 1, -1, -1));
    QPainter(this).fillPath(line, colour);
}
