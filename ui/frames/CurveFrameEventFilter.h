// SPDX-License-Identifier: MIT
#pragma once

#include "ui/frames/CurveFrame.h"

#include <QObject>
#include <QPointer>

/// Lets the Delete key remove the selected point of a curve editor wherever the focus is. To be installed on the
/// application. Active while the editor is visible, has a selected point, and no modal dialog or menu is open. The
/// editor may be destroyed first.
class CurveFrameEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit CurveFrameEventFilter(CurveFrame *frame, QObject *parent = nullptr);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QPointer<CurveFrame> m_frame;
};
