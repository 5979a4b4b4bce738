// SPDX-License-Identifier: MIT
#include "app/FilterButtonStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace grisal::ui
{

namespace
{

constexpr int lineHeight = 3;

// The text and the icons, which are grey and orange, stay legible on a translucent fill on light and dark palettes.
void drawOn(QPainter &painter, const QStyleOption &option)
{
    constexpr double radius = 3;
    constexpr double opacity = 0.25;
    constexpr double edgeWidth = 2;
    const QColor edge = option.palette.color(QPalette::Highlight);
    QColor fill = edge;
    fill.setAlphaF(opacity);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, edgeWidth));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), radius, radius);
    painter.restore();
}

} // namespace

void FilterButtonStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                      const QWidget *widget) const
{
    if (element == PE_PanelButtonTool && option->state.testFlag(State_On)) {
        drawOn(*painter, *option);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void FilterButtonStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ToolButtonLabel && widget != nullptr && widget == m_shown) {
        const QRect area = widget->rect();
        painter->fillRect(area.left(), area.bottom() + 1 - lineHeight, area.width(), lineHeight,
                          option->palette.color(QPalette::ButtonText));
    }
}

} // namespace grisal::ui
