// SPDX-License-Identifier: MIT
#include "ui/panels/LumaSlider.h"

#include <QStyleOptionSlider>
#include <QStylePainter>

void LumaSlider::paintEvent(QPaintEvent *)
{
    constexpr QColor knob(239, 239, 239);
    QStyleOptionSlider option;
    initStyleOption(&option);
    QPalette light(knob);
    light.setBrush(QPalette::Highlight, option.palette.highlight());
    option.palette = light;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (tickPosition() != NoTicks) {
        option.subControls |= QStyle::SC_SliderTickmarks;
    }
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    }
    QStylePainter(this).drawComplexControl(QStyle::CC_Slider, option);
}
