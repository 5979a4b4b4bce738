// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

/// A slider over a ramp from black to white. Its knob is light with a dark outline and therefore visible on the whole
/// ramp; the style sheet of the ramp would also fill the knob, which would be black on black.
class LumaSlider : public QSlider
{
public:
    using QSlider::QSlider;

protected:
    void paintEvent(QPaintEvent *event) override;
};
