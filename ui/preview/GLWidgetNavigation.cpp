// SPDX-License-Identifier: MIT
//
// Navigation in the preview: zoom, fit, pan, and comparison with the original.
#include "ui/preview/GLWidget.h"

#include "graphics/image/PreviewImage.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <chrono>
#include <cmath>
#include <utility>

namespace grisal::ui
{

using namespace std::chrono_literals;

namespace
{

constexpr auto holdToCompare = 250ms;
constexpr auto refitAfterResize = 100ms;

} // namespace

void GLWidget::resizeGL(int, int)
{
    m_resizeTimer.start(refitAfterResize);
}

void GLWidget::resize()
{
    slotFitTo(m_fitMode);
}

FitRatios GLWidget::ratios() const
{
    const QSize size = pixelSize();
    return fitRatios(size.width(), size.height(), m_previewWidth, m_previewHeight);
}

GLWidget::enumFitTo GLWidget::fitOnWidth() const
{
    return ratios().width >= ratios().height ? FitLarger : FitSmaller;
}

GLWidget::enumFitTo GLWidget::fitOnHeight() const
{
    return fitOnWidth() == FitLarger ? FitSmaller : FitLarger;
}

float GLWidget::scale() const
{
    return m_stage.preview() ? m_stage.preview()->view().scale() : 1.0F;
}

int GLWidget::percentOfImage() const
{
    constexpr float percent = 100;
    return static_cast<int>(std::lround(scale() * percent / static_cast<float>(previewDownscaling())));
}

int GLWidget::previewDownscaling() const
{
    return graphics::previewDownscaling(m_imageSize.width(), m_imageSize.height());
}

QPointF GLWidget::offset() const
{
    const graphics::Preview *preview = m_stage.preview();
    return preview ? QPointF(preview->view().offsetX(), preview->view().offsetY()) : QPointF();
}

void GLWidget::slotZoomIn()
{
    zoom(1);
}

void GLWidget::slotZoomOut()
{
    zoom(-1);
}

void GLWidget::zoom(float step)
{
    if (graphics::Preview *preview = m_stage.preview()) {
        preview->view().setScale(zoomedScale(scale(), step, ratios().smaller()));
        showScale();
    }
}

void GLWidget::showScale()
{
    update();
    notifyValueChanged();
    emit signalScaleChanged();
}

void GLWidget::slotFitTo(enumFitTo mode)
{
    m_fitMode = mode;
    switch (mode) {
    case FitLarger:
        showCentred(fitMargin * ratios().larger());
        break;
    case FitSmaller:
        showCentred(fitMargin * ratios().smaller());
        break;
    case FitActual:
        showCentred(1.0F);
        break;
    default:
        qWarning("Wrong zoom mode selected");
        showCentred(1.0F);
    }
}

void GLWidget::slotActualPixels()
{
    slotFitTo(FitActual);
}

void GLWidget::showCentred(float scale)
{
    if (graphics::Preview *preview = m_stage.preview()) {
        fitViewToWidget();
        preview->view().setScale(scale);
        preview->view().centre();
        showScale();
    }
}

void GLWidget::singleClick()
{
    setBypass(true);
}

void GLWidget::setBypass(bool bypass)
{
    if (graphics::Preview *preview = m_stage.preview()) {
        preview->document().setBypass(bypass);
    }
    m_bypass = bypass;
    renderImage();
    notifyValueChanged();
}

QPointF GLWidget::pixelPosition(const QMouseEvent *event) const
{
    return event->position() * devicePixelRatioF();
}

void GLWidget::mousePressEvent(QMouseEvent *event)
{
    m_drag.start(pixelPosition(event));
    m_clickTimer.start(holdToCompare);
    update();
}

void GLWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (const std::optional<QPointF> displacement = m_drag.moveTo(pixelPosition(event))) {
        m_clickTimer.stop();
        pan(*displacement);
    }
}

void GLWidget::pan(QPointF drag)
{
    if (graphics::Preview *preview = m_stage.preview()) {
        const QPointF moved = draggedOffset(offset(), drag);
        preview->view().setOffset(static_cast<float>(moved.x()), static_cast<float>(moved.y()));
    }
    update();
}

void GLWidget::mouseReleaseEvent(QMouseEvent *)
{
    m_drag.end();
    m_clickTimer.stop();
    setBypass(false);
}

void GLWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_clickTimer.stop();
    slotFitTo(event->button() == Qt::RightButton ? FitLarger : FitSmaller);
}

void GLWidget::wheelEvent(QWheelEvent *event)
{
    zoom(static_cast<float>(wheelSteps(event->angleDelta().y())));
    event->accept();
}

void GLWidget::keyPressEvent(QKeyEvent *event)
{
    if (!handleKey(*event)) {
        QOpenGLWidget::keyPressEvent(event);
        return;
    }
    m_focusMark.useKey();
}

bool GLWidget::handleKey(const QKeyEvent &event)
{
    constexpr double step = 20;
    const PreviewKey key = previewKeyOf(event);
    switch (key.action) {
    case PreviewKey::None:
        return false;
    case PreviewKey::Pan:
        pan(QPointF(key.direction) * step * devicePixelRatioF());
        break;
    case PreviewKey::ZoomIn:
        slotZoomIn();
        break;
    case PreviewKey::ZoomOut:
        slotZoomOut();
        break;
    case PreviewKey::Compare:
        if (!event.isAutoRepeat()) {
            setBypass(true);
        }
        break;
    }
    return true;
}

void GLWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        QOpenGLWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        setBypass(false);
    }
}

// The key release is sent to another widget.
void GLWidget::focusOutEvent(QFocusEvent *event)
{
    if (m_bypass && !m_drag.isActive()) {
        setBypass(false);
    }
    QOpenGLWidget::focusOutEvent(event);
}

QString GLWidget::accessibleValue() const
{
    if (m_stage.preview() == nullptr) {
        return tr("No picture");
    }
    const QString shown =
        tr("%1 x %2 pixels at %3 %").arg(m_imageSize.width()).arg(m_imageSize.height()).arg(percentOfImage());
    return m_bypass ? tr("%1, without the filters").arg(shown) : shown;
}

} // namespace grisal::ui
