// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/GuiTest.h"
#include "ui/frames/YUVFrame.h"
#include "ui/panels/Mixer.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>

#include <array>

namespace grisal::test
{

/// A test of the mixer panel. The weights are those of red, green and blue.
class MixerTest : public GuiTest
{
protected:
    using Triple = std::array<int, 3>;

    QSlider &slider(const char *name) { return child<QSlider>(panel, name); }
    QSpinBox &spinBox(const char *name) { return child<QSpinBox>(panel, name); }

    Triple sliders() { return {slider("sliderR").value(), slider("sliderG").value(), slider("sliderB").value()}; }
    Triple spinBoxes()
    {
        return {spinBox("spinBoxR").value(), spinBox("spinBoxG").value(), spinBox("spinBoxB").value()};
    }

    void choose(const char *look) { presets.setCurrentText(QString::fromLatin1(look)); }

    void setChannels(const Triple &weights)
    {
        slider("sliderR").setValue(weights[0]);
        slider("sliderG").setValue(weights[1]);
        slider("sliderB").setValue(weights[2]);
    }

    /// Expects one emission since the last call, of these weights on the scale 0..255.
    void expectEmitted(float r, float g, float b)
    {
        ASSERT_EQ(emitted.count(), 1);
        const QVariantList weights = emitted.takeFirst();
        EXPECT_FLOAT_EQ(weights[0].toFloat(), r / 255.0F);
        EXPECT_FLOAT_EQ(weights[1].toFloat(), g / 255.0F);
        EXPECT_FLOAT_EQ(weights[2].toFloat(), b / 255.0F);
    }

    void expectOnWheel(float r, float g, float b)
    {
        const float mean = (r + g + b) / 3;
        EXPECT_NEAR(wheel.luma(), mean, 1e-3);
        EXPECT_NEAR(wheel.markerX(), (b - mean + 341) / 682, 1e-5);
        EXPECT_NEAR(wheel.markerY(), (mean - r + 341) / 682, 1e-5);
    }

    Mixer panel;
    YUVFrame &wheel = child<YUVFrame>(panel, "frameYUV");
    QComboBox &presets = child<QComboBox>(panel, "comboPresets");
    QSignalSpy emitted{&panel, &Mixer::signalMixer};
};

} // namespace grisal::test
