// SPDX-License-Identifier: MIT
// The form of the mixer panel; its behaviour is tested in Mixer_gui_test.
#include "tests/support/GuiTest.h"
#include "ui/panels/Mixer.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

namespace
{

using namespace grisal::test;

class MixerForm : public GuiTest
{
protected:
    QSlider &slider(const char *name) { return child<QSlider>(panel, name); }
    QSpinBox &spinBox(const char *name) { return child<QSpinBox>(panel, name); }

    Mixer panel;
};

TEST_F(MixerForm, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    EXPECT_EQ(methodsOf(Mixer::staticMetaObject, '\n'), "signalMixer(float,float,float)\n"
                                                        "slotSetRGB(float,float,float)\n"
                                                        "on_sliderLuma_valueChanged(int)\n"
                                                        "on_sliderR_valueChanged(int)\n"
                                                        "on_sliderG_valueChanged(int)\n"
                                                        "on_sliderB_valueChanged(int)\n"
                                                        "on_spinBoxLuma_valueChanged(int)\n"
                                                        "on_spinBoxR_valueChanged(int)\n"
                                                        "on_spinBoxG_valueChanged(int)\n"
                                                        "on_spinBoxB_valueChanged(int)\n"
                                                        "on_buttonReset_clicked()\n"
                                                        "on_comboPresets_currentIndexChanged(int)\n"
                                                        "on_comboPresets_highlighted(int)");
}

TEST_F(MixerForm, HasItsRangesAndInitialValues)
{
    for (const char *name : {"sliderR", "sliderG", "sliderB"}) {
        EXPECT_EQ(slider(name).minimum(), -512) << name;
        EXPECT_EQ(slider(name).maximum(), 511) << name;
        EXPECT_EQ(slider(name).value(), 85) << name;
    }
    for (const char *name : {"spinBoxR", "spinBoxG", "spinBoxB"}) {
        EXPECT_EQ(spinBox(name).minimum(), -512) << name;
        EXPECT_EQ(spinBox(name).maximum(), 511) << name;
        EXPECT_EQ(spinBox(name).value(), 85) << name;
    }
    EXPECT_EQ(slider("sliderLuma").minimum(), 0);
    EXPECT_EQ(slider("sliderLuma").maximum(), 511);
    EXPECT_EQ(slider("sliderLuma").value(), 255);
    EXPECT_EQ(spinBox("spinBoxLuma").minimum(), 0);
    EXPECT_EQ(spinBox("spinBoxLuma").maximum(), 511);
    EXPECT_EQ(spinBox("spinBoxLuma").value(), 255);
}

TEST_F(MixerForm, SlidersAreHorizontalWithTicksAbove)
{
    for (const char *name : {"sliderLuma", "sliderR", "sliderG", "sliderB"}) {
        EXPECT_EQ(slider(name).orientation(), Qt::Horizontal) << name;
        EXPECT_EQ(slider(name).tickPosition(), QSlider::TicksAbove) << name;
    }
}

TEST_F(MixerForm, HasItsColours)
{
    EXPECT_EQ(slider("sliderLuma").styleSheet(),
              QStringLiteral("background-color:qlineargradient(spread:pad, x1:1, y1:1, x2:0, y2:1, stop:0 rgba(0, 0, "
                             "0, 255), stop:1 rgba(255, 255, 255, 255));"));
    EXPECT_EQ(spinBox("spinBoxLuma").styleSheet(), QStringLiteral("background:black;\ncolor:white;"));
    EXPECT_EQ(spinBox("spinBoxR").styleSheet(), QStringLiteral("background:red;\ncolor:white;"));
    EXPECT_EQ(spinBox("spinBoxG").styleSheet(), QStringLiteral("background:green;\ncolor:white;"));
    EXPECT_EQ(spinBox("spinBoxB").styleSheet(), QStringLiteral("background:blue;\ncolor:white;"));
}

TEST_F(MixerForm, HasItsTexts)
{
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
    EXPECT_EQ(child<QLabel>(panel, "label").text(), QStringLiteral("Presets:"));
    EXPECT_EQ(child<QLabel>(panel, "label_2").text(), QStringLiteral("Luma"));
    EXPECT_EQ(child<QLabel>(panel, "label_3").text(), QStringLiteral("<div style=\" color:#ff0000;\">Red</div>"));
    EXPECT_EQ(child<QLabel>(panel, "label_4").text(), QStringLiteral("<div style=\" color:green;\">Green</div>"));
    EXPECT_EQ(child<QLabel>(panel, "label_5").text(), QStringLiteral("<div style=\" color:#0000ff;\">Blue</div>"));
    const auto &reset = child<QPushButton>(panel, "buttonReset");
    EXPECT_EQ(reset.text(), QStringLiteral("\t↻"));
    EXPECT_FALSE(reset.toolTip().isEmpty());
}

TEST_F(MixerForm, TabOrderStartsAtTheLooksAndGoesDown)
{
    panel.show();
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    child<QComboBox>(panel, "comboPresets").setFocus();
    QStringList names;
    for (int i = 0; i < 11; ++i) {
        names << panel.focusWidget()->objectName();
        EXPECT_FALSE(panel.focusWidget()->accessibleName().isEmpty()) << names.last().toStdString();
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(' ').toStdString(),
              "comboPresets buttonReset frameYUV sliderLuma spinBoxLuma sliderR spinBoxR "
              "sliderG spinBoxG sliderB spinBoxB");
}

} // namespace
