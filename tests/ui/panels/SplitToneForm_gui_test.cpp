// SPDX-License-Identifier: MIT
// The form of the split tone panel; its behaviour is tested in SplitTone_gui_test.
#include "tests/support/GuiTest.h"
#include "ui/frames/YUVFrame.h"
#include "ui/panels/SplitTone.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <array>

namespace
{

using namespace grisal::test;

constexpr std::array<const char *, 6> channels{"spinBoxHR", "spinBoxHG", "spinBoxHB",
                                               "spinBoxSR", "spinBoxSG", "spinBoxSB"};

class SplitToneForm : public GuiTest
{
protected:
    QSlider &slider(const char *name) { return child<QSlider>(panel, name); }
    QSpinBox &spinBox(const char *name) { return child<QSpinBox>(panel, name); }
    YUVFrame &frame(const char *name) { return child<YUVFrame>(panel, name); }

    SplitTone panel;
};

TEST_F(SplitToneForm, HasItsRangesAndInitialValues)
{
    for (const char *name : channels) {
        EXPECT_EQ(spinBox(name).minimum(), 0) << name;
        EXPECT_EQ(spinBox(name).maximum(), 255) << name;
    }
    for (const char *name : {"sliderHLuma", "sliderSLuma"}) {
        EXPECT_EQ(slider(name).orientation(), Qt::Vertical) << name;
        EXPECT_EQ(slider(name).minimum(), 0) << name;
        EXPECT_EQ(slider(name).maximum(), 255) << name;
        EXPECT_EQ(slider(name).value(), 128) << name;
    }
    EXPECT_EQ(slider("sliderWeight").orientation(), Qt::Horizontal);
    EXPECT_EQ(slider("sliderWeight").minimum(), 0);
    EXPECT_EQ(slider("sliderWeight").maximum(), 100);
    EXPECT_EQ(slider("sliderWeight").value(), 50);
    EXPECT_EQ(spinBox("spinBoxWeight").minimum(), 0);
    EXPECT_EQ(spinBox("spinBoxWeight").maximum(), 100);
    EXPECT_EQ(spinBox("spinBoxWeight").value(), 50);
    EXPECT_EQ(frame("frameHighlights").minimumSize(), QSize(0, 100));
    EXPECT_EQ(frame("frameShadows").minimumSize(), QSize(0, 100));
    EXPECT_EQ(frame("frameHighlights").colorSpace(), 0);
    EXPECT_EQ(frame("frameShadows").colorSpace(), 0);
}

TEST_F(SplitToneForm, WheelsAreSquareInAPanelThatIsWideEnough)
{
    panel.show();
    for (const int width : {300, 400}) {
        panel.resize(width, 1000);
        QCoreApplication::processEvents();
        EXPECT_EQ(frame("frameHighlights").width(), frame("frameHighlights").height()) << width;
        EXPECT_EQ(frame("frameShadows").width(), frame("frameShadows").height()) << width;
    }
}

TEST_F(SplitToneForm, HasItsTexts)
{
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
    EXPECT_EQ(child<QLabel>(panel, "labelPresets").text(), QStringLiteral("Presets:"));
    EXPECT_EQ(child<QGroupBox>(panel, "groupBoxHighlights").title(), QStringLiteral("Highlights"));
    EXPECT_EQ(child<QGroupBox>(panel, "groupBoxShadows").title(), QStringLiteral("Shadows"));
    EXPECT_EQ(child<QLabel>(panel, "labelWeight").text(), QStringLiteral("Weight"));
    EXPECT_EQ(child<QPushButton>(panel, "buttonReset").text(), QStringLiteral("\t↻"));
    for (const QString &tone : {QStringLiteral("H"), QStringLiteral("S")}) {
        const auto text = [&](const char *channel) {
            return child<QLabel>(panel, qPrintable(QStringLiteral("label") + tone + QLatin1String(channel))).text();
        };
        EXPECT_EQ(text("R"), QStringLiteral("<div style=\" color:#ff0000;\">Red</div>"));
        EXPECT_EQ(text("G"), QStringLiteral("<div style=\" color:green;\">Green</div>"));
        EXPECT_EQ(text("B"), QStringLiteral("<div style=\" color:#0000ff;\">Blue</div>"));
    }
}

TEST_F(SplitToneForm, HasItsColours)
{
    for (const char *name : {"sliderHLuma", "sliderSLuma"}) {
        EXPECT_EQ(slider(name).styleSheet(),
                  QStringLiteral("background-color:qlineargradient(spread:pad, x1:1, y1:1, x2:1, y2:0, stop:0 rgba(0, "
                                 "0, 0, 255), stop:1 rgba(255, 255, 255, 255));"));
    }
    const QStringList colours{QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        EXPECT_EQ(spinBox(channels[i]).styleSheet(),
                  QStringLiteral("background:%1;\ncolor:white;").arg(colours[static_cast<int>(i % 3)]));
    }
}

TEST_F(SplitToneForm, PresetsAreEmptyAndDisabled)
{
    EXPECT_EQ(child<QComboBox>(panel, "comboPresets").count(), 0);
    EXPECT_FALSE(child<QComboBox>(panel, "comboPresets").isEnabled());
    EXPECT_EQ(child<QComboBox>(panel, "comboPresets").toolTip(), QStringLiteral("There are no presets yet"));
}

TEST_F(SplitToneForm, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    const QMetaObject &meta = SplitTone::staticMetaObject;
    EXPECT_EQ(methodsOf(SplitTone::staticMetaObject),
              "signalSplit(float,float,float,float,float,float,float) on_spinBoxHR_valueChanged(int) "
              "on_spinBoxWeight_valueChanged(int) on_spinBoxHG_valueChanged(int) on_spinBoxHB_valueChanged(int) "
              "on_spinBoxSR_valueChanged(int) on_spinBoxSG_valueChanged(int) on_spinBoxSB_valueChanged(int) "
              "on_sliderWeight_valueChanged(int) on_sliderHLuma_valueChanged(int) slotSetShadows(float,float,float) "
              "slotSetHighlights(float,float,float) on_sliderSLuma_valueChanged(int) emitAll() "
              "on_buttonReset_clicked()");
    EXPECT_EQ(meta.method(meta.methodOffset()).parameterNames().join(','), "weight,r1,g1,b1,r2,g2,b2");
}

TEST_F(SplitToneForm, ControlsHaveNamesTipsAndTabOrder)
{
    panel.show();
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    child<QPushButton>(panel, "buttonReset").setFocus();
    QStringList names;
    for (int i = 0; i < 13; ++i) {
        QWidget *control = panel.focusWidget();
        names << control->objectName();
        EXPECT_FALSE(control->accessibleName().isEmpty()) << names.last().toStdString();
        EXPECT_FALSE(control->toolTip().isEmpty()) << names.last().toStdString();
        QTest::keyClick(control, Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(' ').toStdString(),
              "buttonReset sliderHLuma frameHighlights spinBoxHR spinBoxHG spinBoxHB sliderWeight spinBoxWeight "
              "sliderSLuma frameShadows spinBoxSR spinBoxSG spinBoxSB");
}

} // namespace
