// SPDX-License-Identifier: MIT
#include "ui/frames/VFrame.h"

#include "ui/accessible/Keys.h"
#include "ui/frames/VignetteShape.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

VFrame::VFrame(QWidget *parent) : QFrame(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy proportions(QSizePolicy::Preferred, QSizePolicy::Preferred);
    proportions.setHeightForWidth(true);
    setSizePolicy(proportions);
}

int VFrame::heightForWidth(int width) const
{
    return sizeWithin(width).height();
}

void VFrame::limitTo(int side)
{
    setMaximumWidth(sizeWithin(side).width());
}

QSize VFrame::sizeWithin(int side) const
{
    return proportions().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
}

void VFrame::setImageSize(QSize size)
{
    m_imageSize = size;
    updateGeometry();
    update();
}

QSize VFrame::proportions() const
{
    return m_imageSize.isEmpty() ? usualProportions : m_imageSize;
}

void VFrame::slotSetX(float x)
{
    m_posX = x;
    update();
}

void VFrame::slotSetY(float y)
{
    m_posY = y;
    update();
}

void VFrame::slotSetRadius(float radius)
{
    if (!replacesFraction(m_radius, radius)) {
        return;
    }
    m_radius = radius;
    emit signalRadius(m_radius);
    update();
}

void VFrame::slotSetStrength(float strength)
{
    if (!replacesFraction(m_strength, strength)) {
        return;
    }
    m_strength = strength;
    emit signalStrength(m_strength);
    update();
}

void VFrame::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QFrame::mousePressEvent(event);
        return;
    }
    m_pressed = true;
    pick(event);
}

void VFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressed) {
        pick(event);
    }
}

void VFrame::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressed = false;
    }
}

void VFrame::pick(const QMouseEvent *event)
{
    const QSize size = contentsRect().size();
    if (size.isEmpty()) {
        return;
    }
    choose(event->position().x() / size.width(), event->position().y() / size.height());
}

void VFrame::choose(double x, double y)
{
    m_posX = x;
    m_posY = y;
    emit signalPosition({m_posX, m_posY});
    update();
}

void VFrame::wheelEvent(QWheelEvent *event)
{
    turnWheel(event->angleDelta().y(), event->modifiers().testFlag(Qt::ControlModifier));
}

void VFrame::turnWheel(int delta, bool strength)
{
    if (strength) {
        slotSetStrength(fractionAfterWheel(m_strength, delta));
    } else {
        slotSetRadius(fractionAfterWheel(m_radius, delta));
    }
}

void VFrame::keyPressEvent(QKeyEvent *event)
{
    const QPoint arrow = arrowOf(*event);
    if (!arrow.isNull()) {
        choose(fractionAfterStep(m_posX, m_percents.x, arrow.x()), fractionAfterStep(m_posY, m_percents.y, arrow.y()));
    } else if (const int turn = wheelTurnOf(*event); turn != 0) {
        turnWheel(turn, event->modifiers().testFlag(Qt::ControlModifier));
    } else {
        QFrame::keyPressEvent(event);
        return;
    }
    m_focusMark.useKey();
}

void VFrame::setPercents(const VignettePercents &percents)
{
    m_percents = percents;
    notifyValueChanged();
}

QString VFrame::accessibleValue() const
{
    return tr("Centre %1 % from the left and %2 % from the top, radius %3 %, strength %4 %")
        .arg(m_percents.x)
        .arg(m_percents.y)
        .arg(m_percents.radius)
        .arg(m_percents.strength);
}

// A centre beyond the edge is shown at the edge, because the vignette of the photograph is clamped in the same way.
grisal::graphics::VignetteParameters VFrame::shownVignette() const
{
    constexpr float percent = 100;
    const auto x = static_cast<float>(std::clamp(m_posX, 0.0, 1.0));
    const auto y = static_cast<float>(std::clamp(m_posY, 0.0, 1.0));
    return {{x * percent, y * percent, 0}, m_strength * percent, m_radius * percent};
}

// Lines that are one pixel wide are sharp at half-integer coordinates.
QPainterPath VFrame::marks() const
{
    constexpr double centreMark = 4;
    const QRectF image = contentsRect();
    const grisal::graphics::VignetteParameters shown = shownVignette();
    const QSizeF reach = vignetteReach(shown.radius, proportions());
    const QPointF centre(std::floor(image.left() + image.width() * shown.center.x / 100) + 0.5,
                         std::floor(image.top() + image.height() * shown.center.y / 100) + 0.5);
    QPainterPath path;
    path.addEllipse(centre, image.width() * reach.width(), image.height() * reach.height());
    path.addRect(QRectF(centre, centre).adjusted(-centreMark, -centreMark, centreMark, centreMark));
    return path;
}

void VFrame::paintEvent(QPaintEvent *)
{
    // A higher resolution takes longer and makes no visible difference.
    constexpr QSize finest(600, 400);
    const QRect image = contentsRect();
    if (image.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setClipRect(image, Qt::ReplaceClip);
    const QSize pixels = (QSizeF(image.size()) * devicePixelRatioF()).toSize().boundedTo(finest);
    painter.drawImage(image, vignettePicture(shownVignette(), pixels, proportions()));

    // Dark lines with a light outline are visible on every grey.
    const QPainterPath path = marks();
    QPainterPathStroker rim;
    rim.setWidth(3);
    painter.fillPath(rim.createStroke(path), QColor(255, 255, 255, 200));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawPath(path);
    m_focusMark.draw(painter, image);
}
