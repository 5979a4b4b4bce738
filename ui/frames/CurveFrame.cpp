// SPDX-License-Identifier: MIT
#include "ui/frames/CurveFrame.h"

#include "ui/StatusTip.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using grisal::graphics::Curve;
using grisal::graphics::CurveKind;

namespace
{

constexpr int bins = 256;
constexpr float initialBin = 0.3F;
constexpr int gridLines = 4;

const QColor gridColour(0, 0, 0, 40);
const QColor histogramColour(90, 90, 90, 150);
const QColor curveColour(20, 20, 20);
const QColor pointColour(255, 255, 255);
const QColor selectedColour(214, 110, 0);

} // namespace

CurveFrame::CurveFrame(QWidget *parent) : QFrame(parent), m_histogram(bins, initialBin), m_samples(bins, initialBin)
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    QSizePolicy square(QSizePolicy::Preferred, QSizePolicy::Preferred);
    square.setHeightForWidth(true);
    setSizePolicy(square);
}

// Only x is clamped. The y values may be outside of the frame; the values of the curve are clamped when they are
// sampled.
void CurveFrame::setPoints(QVector<float> xs, const QVector<float> &ys)
{
    for (float &x : xs) {
        x = std::clamp(x, 0.0F, 1.0F);
    }
    m_points = {xs, ys};
    if (xs.size() != ys.size()) {
        qWarning("xs.size() != ys.size()");
        m_points.ys.resize(xs.size());
    }
    m_selected = -1;
    showChange();
}

Curve CurveFrame::curve() const
{
    return {m_points, m_interpolation == Linear ? CurveKind::Straight : CurveKind::Smooth};
}

QVector<float> CurveFrame::sample(int count)
{
    m_samples = curve().sample(count);
    return m_samples;
}

QVector<float> CurveFrame::outputHistogram() const
{
    return grisal::graphics::histogramBehind(m_samples, m_histogram);
}

void CurveFrame::setHistogram(const QVector<float> &histogram)
{
    if (histogram.size() != bins) {
        qWarning("curves: wrong histogram size");
        return;
    }
    m_histogram = histogram;
    update();
}

void CurveFrame::slotSetInterpolation(CurveFrame::interpolationType interpolation)
{
    m_interpolation = interpolation;
    update();
}

void CurveFrame::slotSetActiveTo(float x, float y)
{
    if (m_selected < 0) {
        return;
    }
    movePoint(m_points, m_selected, x, y);
    emitMoved();
    showChange();
}

void CurveFrame::slotSetInactive()
{
    m_selected = -1;
    showChange();
}

void CurveFrame::deleteSelected()
{
    if (!removePoint(m_points, m_selected)) {
        return;
    }
    --m_selected;
    // Deleting the point ends its drag.
    m_pressed = false;
    emitMoved();
    showChange();
}

void CurveFrame::emitMoved()
{
    if (m_selected >= 0) {
        emit signalMoved(m_points.xs[m_selected], m_points.ys[m_selected]);
    }
}

void CurveFrame::showChange()
{
    update();
    notifyValueChanged();
}

QString CurveFrame::accessibleValue() const
{
    if (m_selected < 0) {
        return tr("Points: %1, none selected").arg(m_points.count());
    }
    constexpr float percent = 100;
    return tr("Point %1 of %2: %3 % from the left, %4 % from the bottom")
        .arg(m_selected + 1)
        .arg(m_points.count())
        .arg(std::lround(m_points.xs[m_selected] * percent))
        .arg(std::lround((1 - m_points.ys[m_selected]) * percent));
}

QPointF CurveFrame::placeOf(const QMouseEvent &event) const
{
    const QSize size = contentsRect().size();
    return {event.position().x() / size.width(), event.position().y() / size.height()};
}

void CurveFrame::mousePressEvent(QMouseEvent *event)
{
    if (event == nullptr) {
        qWarning("ERROR: Invalid event");
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_pressed = true;
    const QPointF place = placeOf(*event);
    const auto x = static_cast<float>(place.x());
    int taken = pointAt(m_points, x);
    if (taken < 0) {
        taken = insertPoint(m_points, x, static_cast<float>(place.y()));
    }
    if (taken < 0) {
        return;
    }
    m_selected = taken;
    emit signalPressed();
    showChange();
}

void CurveFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (event == nullptr) {
        qWarning("ERROR: Invalid event");
        return;
    }
    const QPointF place = placeOf(*event);
    showStatusTip(*this, valuesAt(place));
    if (!m_pressed || m_selected < 0) {
        return;
    }
    movePoint(m_points, m_selected, static_cast<float>(place.x()), static_cast<float>(std::clamp(place.y(), 0.0, 1.0)));
    showChange();
}

void CurveFrame::mouseReleaseEvent(QMouseEvent *event)
{
    if (event == nullptr) {
        qWarning("ERROR: Invalid event");
        return;
    }
    if (m_pressed && event->button() == Qt::LeftButton) {
        m_pressed = false;
        emitMoved();
    }
}

void CurveFrame::leaveEvent(QEvent *event)
{
    showStatusTip(*this, {});
    QFrame::leaveEvent(event);
}

QString CurveFrame::valuesAt(QPointF place) const
{
    constexpr double white = 255;
    constexpr double percent = 100;
    const auto value = [](double share, double highest) { return std::lround(std::clamp(share, 0.0, 1.0) * highest); };
    const auto tone = value(place.x(), white);
    return m_outputIsStrength ? tr("Tone %1, strength %2 %").arg(tone).arg(value(1 - place.y(), percent))
                              : tr("In %1, out %2").arg(tone).arg(value(1 - place.y(), white));
}

QPointF CurveFrame::onFrame(double x, double y) const
{
    const QSize size = contentsRect().size();
    return {x * size.width(), y * size.height()};
}

void CurveFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(&painter);
    painter.setClipRect(contentsRect());
    drawBackground(painter);
    drawHistogram(painter, m_histogram);
    drawCurve(painter);
    drawPoints(painter);
    m_focusMark.draw(painter, contentsRect());
}

void CurveFrame::drawBackground(QPainter &painter) const
{
    const QSize size = contentsRect().size();
    QRadialGradient light(QPointF(size.width(), 0), std::max(size.width(), size.height()));
    light.setColorAt(0, QColor(230, 230, 230));
    light.setColorAt(1, QColor(160, 160, 160));
    painter.fillRect(contentsRect(), light);
    painter.setPen(QPen(gridColour, 1));
    for (int i = 1; i < gridLines; ++i) {
        const double place = static_cast<double>(i) / gridLines;
        painter.drawLine(onFrame(place, 0), onFrame(place, 1));
        painter.drawLine(onFrame(0, place), onFrame(1, place));
    }
}

void CurveFrame::drawHistogram(QPainter &painter, const QVector<float> &histogram) const
{
    if (histogram.isEmpty()) {
        qDebug("No histogram set");
        return;
    }
    QPainterPath tones(onFrame(0, 1));
    for (int i = 0; i < histogram.size(); ++i) {
        const double top = 1.0 - std::min(histogram[i], 1.0F);
        tones.lineTo(onFrame(static_cast<double>(i) / bins, top));
        tones.lineTo(onFrame(static_cast<double>(i + 1) / bins, top));
    }
    tones.lineTo(onFrame(1, 1));
    painter.fillPath(tones, histogramColour);
}

// Sampled again, because the line follows a point while it is dragged, whereas m_samples stays as it is until the next
// sample().
void CurveFrame::drawCurve(QPainter &painter) const
{
    const QVector<float> values = curve().sample(bins);
    QPolygonF line;
    for (int i = 0; i < bins; ++i) {
        line << onFrame(static_cast<double>(i) / bins, 1.0 - values[i]);
    }
    line << onFrame(1, 1.0 - values.last());
    painter.setPen(QPen(curveColour, 2));
    painter.drawPolyline(line);
}

// A point at the edge is drawn beside it, so that the frame does not cut it off.
void CurveFrame::drawPoints(QPainter &painter) const
{
    constexpr double outerWidth = 10;
    constexpr double reach = outerWidth / 2;
    const QRectF whole = QRectF(contentsRect()).adjusted(reach, reach, -reach, -reach);
    for (int i = 0; i < m_points.count(); ++i) {
        const QPointF exact = onFrame(m_points.xs[i], m_points.ys[i]);
        const QPointF place(std::max(whole.left(), std::min(exact.x(), whole.right())),
                            std::max(whole.top(), std::min(exact.y(), whole.bottom())));
        painter.setPen(QPen(curveColour, outerWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawPoint(place);
        painter.setPen(QPen(i == m_selected ? selectedColour : pointColour, 8, Qt::SolidLine, Qt::RoundCap));
        painter.drawPoint(place);
    }
}
