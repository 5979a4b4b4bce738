// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/VFrame.h"
#include "ui/panels/Vignette.h"

#include <QCheckBox>
#include <QChildEvent>
#include <QComboBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include <array>
#include <memory>
#include <vector>

namespace
{

using namespace grisal::test;

constexpr std::array<const char *, 4> values{"X", "Y", "Radius", "Strength"};

using Four = std::array<int, 4>;
using Emission = std::array<float, 5>;

class VignetteTest : public GuiTest
{
protected:
    QSlider &slider(const char *value) { return child<QSlider>(panel, (std::string("slider") + value).c_str()); }
    QSpinBox &spinBox(const char *value) { return child<QSpinBox>(panel, (std::string("spinBox") + value).c_str()); }

    Four sliders()
    {
        return {slider("X").value(), slider("Y").value(), slider("Radius").value(), slider("Strength").value()};
    }

    Four spinBoxes()
    {
        return {spinBox("X").value(), spinBox("Y").value(), spinBox("Radius").value(), spinBox("Strength").value()};
    }

    void expectControls(const Four &wanted)
    {
        EXPECT_EQ(sliders(), wanted);
        EXPECT_EQ(spinBoxes(), wanted);
    }

    /// Expects this on the frame, in percent.
    void expectOnFrame(const std::array<double, 4> &wanted)
    {
        const std::array<double, 4> shown{frame.posX(), frame.posY(), frame.radius(), frame.strength()};
        for (std::size_t i = 0; i < values.size(); ++i) {
            EXPECT_NEAR(shown[i] * 100, wanted[i], 1e-4) << values[i];
        }
    }

    /// The emissions since the last call.
    std::vector<Emission> emissions()
    {
        std::vector<Emission> all;
        while (!emitted.isEmpty()) {
            const QVariantList one = emitted.takeFirst();
            all.push_back({one[0].toFloat(), one[1].toFloat(), one[2].toFloat(), one[3].toFloat(),
                           one[4].toBool() ? 1.0F : 0.0F});
        }
        return all;
    }

    void expectOnce(const Emission &wanted) { EXPECT_EQ(emissions(), std::vector<Emission>{wanted}); }

    /// Expects one emission since the last call, of 50 for all but one value, and the same shown everywhere.
    void expectAlone(std::size_t value, int percent)
    {
        Four shown{50, 50, 50, 50};
        shown[value] = percent;
        expectControls(shown);
        expectOnFrame({double(shown[0]), double(shown[1]), double(shown[2]), double(shown[3])});
        expectOnce({float(shown[0]), float(shown[1]), float(shown[2]), float(shown[3]), 0});
    }

    void show()
    {
        panel.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    }

    /// The position in the frame at whole percents of its size.
    QPoint placeAt(int x, int y) { return {frame.width() * x / 100, frame.height() * y / 100}; }

    void turnWheel(int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(QPointF(5, 5), frame.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, delta), Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&frame, &event);
    }

    Vignette panel;
    VFrame &frame = child<VFrame>(panel, "frame");
    QCheckBox &blur = child<QCheckBox>(panel, "checkBoxBlur");
    QPushButton &reset = child<QPushButton>(panel, "buttonReset");
    QSignalSpy emitted{&panel, &Vignette::signalVignette};
};

TEST_F(VignetteTest, FormHasItsRangesAndInitialValues)
{
    for (const char *value : values) {
        EXPECT_EQ(slider(value).minimum(), 0) << value;
        EXPECT_EQ(slider(value).maximum(), 99) << value;
        EXPECT_EQ(slider(value).orientation(), Qt::Horizontal) << value;
        EXPECT_EQ(spinBox(value).minimum(), 0) << value;
        EXPECT_EQ(spinBox(value).maximum(), 99) << value;
    }
    expectControls({50, 50, 50, 50});
    expectOnFrame({50, 50, 50, 50});
    EXPECT_FALSE(blur.isChecked());
    EXPECT_FALSE(blur.isHidden());
    EXPECT_GE(frame.minimumHeight(), 100);
}

TEST_F(VignetteTest, FormHasItsTexts)
{
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
    EXPECT_EQ(child<QLabel>(panel, "labelPresets").text(), QStringLiteral("Presets:"));
    EXPECT_EQ(blur.text(), QStringLiteral("Extra Blur"));
    EXPECT_EQ(reset.text(), QStringLiteral("\t↻"));
    for (const QWidget *widget : std::initializer_list<QWidget *>{&frame, &blur, &reset}) {
        EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
    }
    for (const char *value : values) {
        EXPECT_EQ(child<QLabel>(panel, (std::string("label") + value).c_str()).text(), QString::fromLatin1(value));
        EXPECT_FALSE(slider(value).toolTip().isEmpty()) << value;
        EXPECT_EQ(slider(value).toolTip(), spinBox(value).toolTip()) << value;
    }
}

TEST_F(VignetteTest, EmptyPresetListIsDisabledWithAToolTip)
{
    const auto &presets = child<QComboBox>(panel, "comboPresets");
    EXPECT_EQ(presets.count(), 0);
    EXPECT_FALSE(presets.isEnabled());
    EXPECT_EQ(presets.toolTip(), QStringLiteral("There are no presets yet"));
}

TEST_F(VignetteTest, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    const QMetaObject &meta = Vignette::staticMetaObject;
    EXPECT_EQ(methodsOf(Vignette::staticMetaObject, '\n'), "signalVignette(float,float,float,float,bool)\n"
                                                           "on_sliderX_valueChanged(int)\n"
                                                           "on_sliderY_valueChanged(int)\n"
                                                           "on_sliderRadius_valueChanged(int)\n"
                                                           "on_sliderStrength_valueChanged(int)\n"
                                                           "on_spinBoxX_valueChanged(int)\n"
                                                           "on_spinBoxY_valueChanged(int)\n"
                                                           "on_spinBoxRadius_valueChanged(int)\n"
                                                           "on_spinBoxStrength_valueChanged(int)\n"
                                                           "on_buttonReset_clicked()\n"
                                                           "on_checkBoxBlur_clicked()\n"
                                                           "slotSetPosition(QPointF)\n"
                                                           "slotSetRadius(float)\n"
                                                           "slotSetStrength(float)");
    EXPECT_EQ(meta.method(meta.methodOffset()).parameterNames().join(','), "x,y,radius,strength,extraBlur");
}

TEST_F(VignetteTest, TabOrderIsTopToBottom)
{
    show();
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    reset.setFocus();
    QStringList names;
    for (int i = 0; i < 11; ++i) {
        names << panel.focusWidget()->objectName();
        EXPECT_FALSE(panel.focusWidget()->accessibleName().isEmpty()) << names.last().toStdString();
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(' ').toStdString(),
              "buttonReset frame sliderX spinBoxX sliderY spinBoxY sliderRadius spinBoxRadius sliderStrength "
              "spinBoxStrength checkBoxBlur");
}

/// Records the emissions of a panel from the moment when its form is set up.
class EarlyListener : public QObject
{
public:
    EarlyListener() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *panel = event->type() == QEvent::ChildAdded ? qobject_cast<Vignette *>(watched) : nullptr;
        if (panel != nullptr && !m_emitted) {
            m_emitted = std::make_unique<QSignalSpy>(panel, &Vignette::signalVignette);
        }
        return false;
    }

    const QSignalSpy *emitted() const { return m_emitted.get(); }

private:
    std::unique_ptr<QSignalSpy> m_emitted;
};

TEST_F(VignetteTest, EmitsOnceDuringConstruction)
{
    const EarlyListener listener;
    const Vignette another;
    ASSERT_NE(listener.emitted(), nullptr);
    ASSERT_EQ(listener.emitted()->count(), 1);
    EXPECT_EQ(listener.emitted()->at(0), (QVariantList{50.0F, 50.0F, 50.0F, 50.0F, false}));
}

TEST_F(VignetteTest, EveryPositionOfEverySliderIsShownAndEmittedOnce)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        slider(values[i]).setValue(99);
        for (int percent = 0; percent < 100; ++percent) {
            emitted.clear();
            slider(values[i]).setValue(percent);
            expectAlone(i, percent);
        }
        slider(values[i]).setValue(50);
    }
}

TEST_F(VignetteTest, EveryNumberOfEverySpinBoxIsShownAndEmittedOnce)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        spinBox(values[i]).setValue(0);
        for (int percent = 99; percent >= 0; --percent) {
            emitted.clear();
            spinBox(values[i]).setValue(percent);
            expectAlone(i, percent);
        }
        spinBox(values[i]).setValue(50);
    }
}

TEST_F(VignetteTest, PressOnTheFrameSetsTheCentre)
{
    show();
    ASSERT_EQ(frame.height(), frame.heightForWidth(frame.width()));
    const QPoint place = placeAt(25, 75);
    QTest::mouseClick(&frame, Qt::LeftButton, {}, place);
    const int x = 100 * place.x() / frame.width();
    const int y = 100 * place.y() / frame.height();
    expectControls({x, y, 50, 50});
    const std::vector<Emission> all = emissions();
    ASSERT_FALSE(all.empty());
    EXPECT_EQ(all.back(), (Emission{static_cast<float>(x), static_cast<float>(y), 50, 50, 0}));
}

TEST_F(VignetteTest, MarkerStaysUnderTheMouse)
{
    show();
    const QPoint place(frame.width() / 3, frame.height() / 7);
    QTest::mouseClick(&frame, Qt::LeftButton, {}, place);
    EXPECT_NEAR(frame.posX() * frame.width(), place.x(), 1e-3);
    EXPECT_NEAR(frame.posY() * frame.height(), place.y(), 1e-3);
}

TEST_F(VignetteTest, DragBeyondTheEdgeIsClampedToTheLimitsOfTheControls)
{
    show();
    QTest::mousePress(&frame, Qt::LeftButton, {}, placeAt(50, 50));
    QTest::mouseMove(&frame, QPoint(frame.width() * 2, -frame.height()));
    expectControls({99, 0, 50, 50});
    EXPECT_NEAR(frame.posX(), 2, 1e-6);
    EXPECT_NEAR(frame.posY(), -1, 1e-6);
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, placeAt(50, 50));
    slider("X").setValue(98);
    EXPECT_NEAR(frame.posX(), 0.98, 1e-6);
}

// Each of the two numbers is emitted separately.
TEST_F(VignetteTest, PositionIsTruncatedToWholePercents)
{
    panel.slotSetPosition({0.339, 0.789});
    EXPECT_EQ(emissions(), (std::vector<Emission>{{33, 50, 50, 50, 0}, {33, 78, 50, 50, 0}}));
    expectControls({33, 78, 50, 50});
    expectOnFrame({33.9, 78.9, 50, 50});
    panel.slotSetPosition({0.335, 0.781});
    EXPECT_TRUE(emitted.isEmpty());
    expectOnFrame({33.5, 78.1, 50, 50});
}

TEST_F(VignetteTest, RadiusAndStrengthAreTruncatedToWholePercents)
{
    panel.slotSetRadius(0.125F);
    expectOnce({50, 50, 12, 50, 0});
    panel.slotSetStrength(0.999F);
    expectOnce({50, 50, 12, 99, 0});
    expectControls({50, 50, 12, 99});
    expectOnFrame({50, 50, 12.5, 99.9});
}

TEST_F(VignetteTest, ValuesBeyondTheLimitsAreClamped)
{
    panel.slotSetRadius(3.5F);
    panel.slotSetStrength(-3.5F);
    expectControls({50, 50, 99, 0});
    expectOnFrame({50, 50, 99, 0});
}

TEST_F(VignetteTest, FrameEmitsOncePerInput)
{
    QSignalSpy position(&frame, &VFrame::signalPosition);
    QSignalSpy radius(&frame, &VFrame::signalRadius);
    QSignalSpy strength(&frame, &VFrame::signalStrength);
    show();
    QTest::mouseClick(&frame, Qt::LeftButton, {}, placeAt(20, 30));
    turnWheel(120);
    turnWheel(120, Qt::ControlModifier);
    EXPECT_EQ(position.count(), 1);
    EXPECT_EQ(radius.count(), 1);
    EXPECT_EQ(strength.count(), 1);
}

TEST_F(VignetteTest, MouseWheelSetsTheRadiusAndWithControlTheStrength)
{
    turnWheel(240);
    expectOnce({50, 50, 52, 50, 0});
    turnWheel(-120, Qt::ControlModifier);
    expectOnce({50, 50, 52, 48, 0});
    expectControls({50, 50, 52, 48});
}

// A fine wheel turns by less than a percent at a time.
TEST_F(VignetteTest, SmallTurnsOfTheMouseWheelAddUp)
{
    for (int i = 0; i < 14; ++i) {
        turnWheel(15);
    }
    expectOnFrame({50, 50, 52.1, 50});
    EXPECT_EQ(emissions(), (std::vector<Emission>{{50, 50, 51, 50, 0}, {50, 50, 52, 50, 0}}));
}

TEST_F(VignetteTest, ClickOnTheBlurBoxEmitsItsState)
{
    show();
    QTest::mouseClick(&blur, Qt::LeftButton, {}, QPoint(8, blur.height() / 2));
    expectOnce({50, 50, 50, 50, 1});
    QTest::mouseClick(&blur, Qt::LeftButton, {}, QPoint(8, blur.height() / 2));
    expectOnce({50, 50, 50, 50, 0});
}

TEST_F(VignetteTest, ResetEmitsFiftyPercentOfAllValuesOnce)
{
    slider("X").setValue(1);
    slider("Y").setValue(2);
    slider("Radius").setValue(3);
    slider("Strength").setValue(4);
    emitted.clear();
    QTest::mouseClick(&reset, Qt::LeftButton);
    expectOnce({50, 50, 50, 50, 0});
    expectControls({50, 50, 50, 50});
    expectOnFrame({50, 50, 50, 50});
}

TEST_F(VignetteTest, ResetEmitsEvenIfNothingHasChanged)
{
    panel.on_buttonReset_clicked();
    expectOnce({50, 50, 50, 50, 0});
}

TEST_F(VignetteTest, ResetSetsValuesBetweenWholePercents)
{
    panel.slotSetPosition({0.507, 0.508});
    panel.slotSetRadius(0.509F);
    panel.slotSetStrength(0.506F);
    panel.on_buttonReset_clicked();
    expectOnFrame({50, 50, 50, 50});
}

TEST_F(VignetteTest, ResetHidesTheBlurBoxAndLeavesItChecked)
{
    blur.click();
    emitted.clear();
    QTest::mouseClick(&reset, Qt::LeftButton);
    EXPECT_TRUE(blur.isHidden());
    expectOnce({50, 50, 50, 50, 1});
    QTest::mouseClick(&reset, Qt::LeftButton);
    EXPECT_TRUE(blur.isHidden());
}

} // namespace
