// SPDX-License-Identifier: MIT
#include "ui/frames/CurveFrameEventFilter.h"

#include <QApplication>
#include <QKeyEvent>

CurveFrameEventFilter::CurveFrameEventFilter(CurveFrame *frame, QObject *parent) : QObject(parent), m_frame(frame) {}

bool CurveFrameEventFilter::eventFilter(QObject *object, QEvent *event)
{
    // Checked first, because other events arrive while the editor is being destroyed.
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(object, event);
    }
    const bool listening = m_frame != nullptr && m_frame->selected() >= 0 && m_frame->isVisible();
    const bool elsewhere = QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
    if (!listening || elsewhere) {
        return QObject::eventFilter(object, event);
    }
    if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Delete) {
        return false;
    }
    m_frame->deleteSelected();
    return true;
}
