// SPDX-License-Identifier: MIT
#pragma once

#include "ui/frames/CurveFrame.h"

#include <QObject>
#include <QPointer>

/// Gives a curve editor the Delete key wherever the focus is: installed on the application, it removes the selected
/// point while the editor is visible and has one, and no dialog or menu stands before it. The editor may be gone before
/// it.
class CurveFrameEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit CurveFrameEventFilter(CurveFrame *frame, QObject *parent = nullptr);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QPointer<CurveFrame> m_frame;
};
