// SPDX-License-Identifier: MIT
#include "ui/accessible/FocusMark.h"

#include <QFocusEvent>
#include <QPainter>
#include <QWidget>

namespace
{

std::array<QRect, 4> edgesOf(const QRect &area, int width)
{
    return {QRect(area.left(), area.top(), area.width(), width),
            QRect(area.left(), area.bottom() + 1 - width, area.width(), width),
            QRect(area.left(), area.top(), width, area.height()),
            QRect(area.right() + 1 - width, area.top(), width, area.height())};
}

} // namespace

std::array<FocusMarkLine, 8> focusMarkLines(const QRect &area, int unit)
{
    const std::array<QRect, 4> light = edgesOf(area, 4 * unit);
    const std::array<QRect, 4> dark = edgesOf(area.adjusted(unit, unit, -unit, -unit), 2 * unit);
    std::array<FocusMarkLine, 8> lines;
    for (std::size_t i = 0; i < light.size(); ++i) {
        lines[i] = {light[i], false};
        lines[light.size() + i] = {dark[i], true};
    }
    return lines;
}

FocusMark::FocusMark(QWidget *widget) : m_widget(widget)
{
    widget->installEventFilter(this);
}

void FocusMark::useKey()
{
    m_wanted = true;
    m_widget->update();
}

bool FocusMark::isSeen() const
{
    return m_wanted && m_widget->hasFocus();
}

void FocusMark::draw(QPainter &painter, const QRect &area) const
{
    if (!isSeen()) {
        return;
    }
    for (const FocusMarkLine &line : focusMarkLines(area, 1)) {
        painter.fillRect(line.place, line.dark ? Qt::black : Qt::white);
    }
}

// Qt repaints the widget whenever its focus changes. When the focus returns from another window or a menu, the mark has
// the same state as before.
bool FocusMark::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        switch (static_cast<QFocusEvent *>(event)->reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            break;
        case Qt::MouseFocusReason:
            m_wanted = false;
            break;
        default:
            m_wanted = true;
        }
    }
    return QObject::eventFilter(object, event);
}
