// SPDX-License-Identifier: MIT
// Controls that have to be legible on light and dark palettes and on ramps from black to white.
#include "tests/support/GuiTest.h"
#include "ui/panels/ChannelLabel.h"
#include "ui/panels/LumaSlider.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/SplitTone.h"

#include <QImage>
#include <QStyleOptionSlider>

#include <initializer_list>

namespace
{

using namespace grisal::test;

const QColor lightWindow(239, 239, 239);
const QColor darkWindow(42, 46, 50);

/// The colour behind a label, above its text.
QColor backgroundOf(QWidget &panel, const char *label)
{
    const auto &widget = child<ChannelLabel>(panel, label);
    const QPoint inside = widget.mapTo(&panel, QPoint(widget.width() / 2, 0));
    return panel.grab().toImage().pixelColor(inside);
}

void expectBoxes(QWidget &panel, std::initializer_list<const char *> labels)
{
    panel.resize(300, 600);
    panel.show();
    for (const char *label : labels) {
        panel.setPalette(QPalette(lightWindow));
        EXPECT_NE(backgroundOf(panel, label), QColor(Qt::white)) << label;
        panel.setPalette(QPalette(darkWindow));
        EXPECT_EQ(backgroundOf(panel, label), QColor(Qt::white)) << label;
    }
}

QColor knobOf(QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.value();
    option.sliderValue = slider.value();
    option.tickPosition = slider.tickPosition();
    option.upsideDown = slider.orientation() == Qt::Vertical;
    const QRect knob = slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
    return slider.grab().toImage().pixelColor(knob.center());
}

void expectLightKnob(QWidget &panel, const char *name)
{
    panel.resize(300, 600);
    panel.show();
    auto &slider = child<LumaSlider>(panel, name);
    for (const QColor &window : {lightWindow, darkWindow}) {
        panel.setPalette(QPalette(window));
        for (const int value : {slider.minimum(), (slider.minimum() + slider.maximum()) / 2, slider.maximum()}) {
            slider.setValue(value);
            EXPECT_GT(knobOf(slider).lightness(), 200) << name << " at " << value;
        }
    }
}

class PanelColours : public GuiTest
{
};

TEST_F(PanelColours, NamesOfChannelsHaveAWhiteBoxOnDarkPalettesOnly)
{
    Mixer mixer;
    expectBoxes(mixer, {"label_3", "label_4", "label_5"});
    SplitTone splitTone;
    expectBoxes(splitTone, {"labelHR", "labelHG", "labelHB", "labelSR", "labelSG", "labelSB"});
}

TEST_F(PanelColours, KnobsOfLumaSlidersAreLightAtEachValue)
{
    Mixer mixer;
    expectLightKnob(mixer, "sliderLuma");
    SplitTone splitTone;
    expectLightKnob(splitTone, "sliderHLuma");
    expectLightKnob(splitTone, "sliderSLuma");
}

} // namespace
