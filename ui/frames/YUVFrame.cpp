// SPDX-License-Identifier: MIT
#include "ui/frames/YUVFrame.h"

#include "math/OpponentColour.h"
#include "ui/accessible/Keys.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <array>
#include <cmath>

YUVFrame::YUVFrame(QWidget *parent) : QFrame(parent)
{
    setFocusPolicy(Qt::WheelFocus);
    QSizePolicy square(QSizePolicy::Preferred, QSizePolicy::Preferred);
    square.setHeightForWidth(true);
    setSizePolicy(square);
    setColorSpace(1);
    emitWeights();
}

void YUVFrame::setColorSpace(int mode)
{
    m_colorSpace = mode;
    const std::optional<ChromaPlane> plane = chromaPlaneOf(mode);
    if (!plane) {
        qWarning("Could not identify color space");
        return;
    }
    m_plane = *plane;
}

void YUVFrame::slotSetRGB(grisal::graphics::ColorRGB<float> weights)
{
    const float luma = grisal::math::meanOf(weights);
    const Chroma chroma{weights.b - luma, weights.r - luma};
    if (nearlyEqualWeights(luma, m_luma) && nearlyEqualWeights(chroma.u, m_chroma.u) &&
        nearlyEqualWeights(chroma.v, m_chroma.v)) {
        return;
    }
    m_luma = luma;
    m_chroma = chroma;
    m_marker = markerAt(m_plane, m_chroma);
    m_wheelImageIsOld = true;
    update();
    notifyValueChanged();
}

void YUVFrame::slotSetLuma(float luma)
{
    m_luma = grisal::math::clampedWeight(luma);
    m_wheelImageIsOld = true;
    update();
    notifyValueChanged();
}

void YUVFrame::mousePressEvent(QMouseEvent *event)
{
    if (event != nullptr && event->button() != Qt::LeftButton) {
        return;
    }
    m_mousePressed = true;
    pick(event);
}

void YUVFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (m_mousePressed) {
        pick(event);
    }
}

void YUVFrame::mouseReleaseEvent(QMouseEvent *)
{
    m_mousePressed = false;
}

void YUVFrame::pick(const QMouseEvent *event)
{
    if (event == nullptr) {
        qWarning("Invalid mouse event");
        return;
    }
    choose({event->position().x() / rect().width(), event->position().y() / rect().height()});
}

void YUVFrame::choose(QPointF marker)
{
    m_marker = marker;
    emitWeights();
    notifyValueChanged();
}

void YUVFrame::wheelEvent(QWheelEvent *event)
{
    turnWheel(event->angleDelta().y());
}

void YUVFrame::turnWheel(int delta)
{
    m_luma = lumaAfterWheel(m_luma, delta);
    m_wheelImageIsOld = true;
    emitWeights();
    notifyValueChanged();
}

void YUVFrame::keyPressEvent(QKeyEvent *event)
{
    constexpr double step = 0.01;
    const QPoint arrow = arrowOf(*event);
    const int turn = isPlain(*event) ? wheelTurnOf(*event) : 0;
    if (!arrow.isNull()) {
        choose({markerAfterStep(m_marker.x(), arrow.x() * step), markerAfterStep(m_marker.y(), arrow.y() * step)});
    } else if (turn != 0) {
        turnWheel(turn);
    } else {
        QFrame::keyPressEvent(event);
        return;
    }
    m_focusMark.useKey();
}

QString YUVFrame::hueName() const
{
    switch (hueOf(m_chroma)) {
    case Hue::Red:
        return tr("Red");
    case Hue::Yellow:
        return tr("Yellow");
    case Hue::Green:
        return tr("Green");
    case Hue::Cyan:
        return tr("Cyan");
    case Hue::Blue:
        return tr("Blue");
    case Hue::Magenta:
        return tr("Magenta");
    default:
        return tr("Grey");
    }
}

QString YUVFrame::accessibleValue() const
{
    const auto weights = grisal::math::weightsAt(m_luma, m_chroma.u, m_chroma.v);
    return tr("%1, level %2: red %3, green %4, blue %5")
        .arg(hueName())
        .arg(std::lround(m_luma))
        .arg(std::lround(weights.r))
        .arg(std::lround(weights.g))
        .arg(std::lround(weights.b));
}

void YUVFrame::resizeEvent(QResizeEvent *)
{
    update();
}

void YUVFrame::emitWeights()
{
    m_chroma = chromaAt(m_plane, m_marker);
    const auto weights = grisal::math::weightsAt(m_luma, m_chroma.u, m_chroma.v);
    emit signalWeights(weights.r, weights.g, weights.b);
    update();
}

// Computed when it is first painted, because usually only one of the two wheels is visible.
const QImage &YUVFrame::wheelImage() const
{
    if (m_wheelImageIsOld) {
        m_wheelImage = wheelImageOf(m_plane, m_luma);
        m_wheelImageIsOld = false;
    }
    return m_wheelImage;
}

void YUVFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(contentsRect(), Qt::ReplaceClip);
    drawWheel(&painter);
    m_focusMark.draw(painter, contentsRect());
}

void YUVFrame::drawWheel(QPainter *painter)
{
    if (wheelImage().isNull()) {
        return;
    }
    if (painter == nullptr) {
        qDebug("ERROR: Invalid painter");
        return;
    }
    const QSize size = contentsRect().size();
    m_scaleX = static_cast<double>(size.width()) / m_plane.width();
    m_scaleY = static_cast<double>(size.height()) / m_plane.height();

    const qreal pixelRatio = painter->device()->devicePixelRatioF();
    QImage shown = wheelImage().scaled(size * pixelRatio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(pixelRatio);
    painter->drawImage(0, 0, shown);

    constexpr float darkestForBlack = 84;
    const QColor colour = m_luma <= darkestForBlack ? Qt::white : Qt::black;
    painter->setPen(QPen(colour, 1.0));
    drawHexagon(*painter, 1);
    drawHexagon(*painter, 2);
    painter->setPen(QPen(colour, 0.5));
    drawAxes(*painter);
    painter->setPen(QPen(colour, 2.0));
    drawMarker(*painter);
}

// The corners are the fully saturated red, yellow, green, cyan, blue and magenta.
void YUVFrame::drawHexagon(QPainter &painter, int saturation) const
{
    constexpr std::array<QPoint, 6> corners{{{-85, 170}, {-170, 85}, {-85, -85}, {85, -170}, {170, -85}, {85, 85}}};
    QPolygonF hexagon;
    for (const QPoint &corner : corners) {
        hexagon << QPointF((saturation * corner.x() - m_plane.uMin) * m_scaleX,
                           (m_plane.vMax - saturation * corner.y()) * m_scaleY);
    }
    painter.drawPolygon(hexagon);
}

void YUVFrame::drawAxes(QPainter &painter) const
{
    const QSize size = contentsRect().size();
    painter.drawLine(size.width() / 2, 0, size.width() / 2, size.height());
    painter.drawLine(0, size.height() / 2, size.width(), size.height() / 2);
}

void YUVFrame::drawMarker(QPainter &painter) const
{
    constexpr int arm = 5;
    const QSize size = contentsRect().size();
    const auto x = static_cast<int>(size.width() * m_marker.x());
    const auto y = static_cast<int>(size.height() * m_marker.y());
    painter.drawLine(x, y - arm, x, y + arm);
    painter.drawLine(x - arm, y, x + arm, y);
}
