// SPDX-License-Identifier: MIT
#include "ui/preview/Navigation.h"

#include "ui/accessible/Keys.h"

#include <QKeyEvent>

#include <utility>

namespace grisal::ui
{

namespace
{

constexpr float freeZoomInLimit = 20.0F;
constexpr float stepsPerUnit = 25.0F;
constexpr int deltaPerNotch = 120;

float ratio(int widgetSide, int pictureSide)
{
    return pictureSide > 0 ? static_cast<float>(widgetSide) / static_cast<float>(pictureSide) : 1.0F;
}

} // namespace

FitRatios fitRatios(int widgetWidth, int widgetHeight, int pictureWidth, int pictureHeight)
{
    return {ratio(widgetWidth, pictureWidth), ratio(widgetHeight, pictureHeight)};
}

float zoomedScale(float scale, float step, float fit)
{
    const bool freeZoomIn = step > 0 && scale <= freeZoomInLimit;
    if (!freeZoomIn && scale <= fit * 0.5F) {
        return scale;
    }
    return scale + step / stepsPerUnit;
}

int wheelSteps(int delta)
{
    return delta / deltaPerNotch;
}

QPointF draggedOffset(QPointF offset, QPointF drag)
{
    return {offset.x() - drag.x(), offset.y() + drag.y()};
}

std::optional<QPointF> Drag::moveTo(QPointF position)
{
    if (!m_last) {
        return std::nullopt;
    }
    return position - *std::exchange(m_last, position);
}

PreviewKey previewKeyOf(const QKeyEvent &event)
{
    if (!isPlain(event)) {
        return {};
    }
    if (const QPoint arrow = arrowOf(event); !arrow.isNull()) {
        return {PreviewKey::Pan, arrow};
    }
    switch (event.key()) {
    case Qt::Key_Plus:
        return {PreviewKey::ZoomIn, {}};
    case Qt::Key_Minus:
        return {PreviewKey::ZoomOut, {}};
    case Qt::Key_Space:
        return {PreviewKey::Compare, {}};
    default:
        return {};
    }
}

} // namespace grisal::ui
