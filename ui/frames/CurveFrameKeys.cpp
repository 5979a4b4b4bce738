// SPDX-License-Identifier: MIT
//
// Editing the curve with the keyboard. The Delete key is handled by CurveFrameEventFilter.
#include "ui/frames/CurveFrame.h"

#include "ui/accessible/Keys.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

void CurveFrame::keyPressEvent(QKeyEvent *event)
{
    if (m_pressed || !edit(*event)) {
        QFrame::keyPressEvent(event);
        return;
    }
    m_focusMark.useKey();
}

bool CurveFrame::edit(const QKeyEvent &event)
{
    const QPoint arrow = arrowOf(event);
    if (m_points.count() == 0 || !isPlain(event)) {
        return false;
    }
    if (!arrow.isNull()) {
        step(arrow);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_PageUp:
        take(m_selected < 0 ? m_points.last() : m_selected - 1);
        return true;
    case Qt::Key_PageDown:
        take(m_selected + 1);
        return true;
    case Qt::Key_Insert:
        addBehindSelected();
        return true;
    default:
        return false;
    }
}

void CurveFrame::take(int index)
{
    m_selected = std::clamp(index, 0, m_points.last());
    emit signalPressed();
    emitMoved();
    showChange();
}

// If no point is selected, an arrow key selects the first one.
void CurveFrame::step(QPoint arrow)
{
    constexpr float length = 0.01F;
    if (m_selected >= 0) {
        const float x = m_points.xs[m_selected] + static_cast<float>(arrow.x()) * length;
        const float y = m_points.ys[m_selected];
        const float moved = std::clamp(y + static_cast<float>(arrow.y()) * length, 0.0F, 1.0F);
        movePoint(m_points, m_selected, x, arrow.y() == 0 ? y : moved);
    }
    take(m_selected);
}

// The point is added on the curve, so that the curve stays as it is, and only where a mouse press would not select an
// existing point.
void CurveFrame::addBehindSelected()
{
    constexpr int places = 256;
    const int left = std::clamp(m_selected, 0, std::max(m_points.last() - 1, 0));
    const int right = std::min(left + 1, m_points.last());
    const float x = (m_points.xs[left] + m_points.xs[right]) / 2;
    if (left == right || pointAt(m_points, x) >= 0) {
        return;
    }
    const auto place = std::min(static_cast<int>(std::lround(x * places)), places - 1);
    const int added = insertPoint(m_points, x, 1 - curve().sample(places)[place]);
    if (added >= 0) {
        take(added);
    }
}
