// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

/// The frame around the panels: a thin line at the edge of the widget. QFrame draws its line around the contents, and
/// without margins these cover the whole widget, so that the line lies outside.
class PanelFrame : public QFrame
{
public:
    using QFrame::QFrame;

protected:
    void paintEvent(QPaintEvent *event) override;
};
