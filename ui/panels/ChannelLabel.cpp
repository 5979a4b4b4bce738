// SPDX-License-Identifier: MIT
#include "ui/panels/ChannelLabel.h"

#include <QEvent>
#include <QPainter>

ChannelLabel::ChannelLabel(QWidget *parent) : QLabel(parent)
{
    setMargins();
}

// On darker windows, the contrast of pure red is below 3:1.
bool ChannelLabel::needsBox() const
{
    constexpr int lightWindow = 223;
    return palette().color(QPalette::Window).lightness() < lightWindow;
}

// Without the box, the text is aligned with the other labels.
void ChannelLabel::setMargins()
{
    constexpr int margin = 4;
    setContentsMargins(needsBox() ? margin : 0, 1, needsBox() ? margin : 0, 1);
}

void ChannelLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setMargins();
    }
}

void ChannelLabel::paintEvent(QPaintEvent *event)
{
    constexpr double radius = 3;
    if (needsBox()) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(rect(), radius, radius);
    }
    QLabel::paintEvent(event);
}
