// SPDX-License-Identifier: MIT
// The vignette's frame reports to screen readers the numbers of the spin boxes beside it.
#include "tests/support/GuiTest.h"
#include "ui/frames/VFrame.h"
#include "ui/panels/Vignette.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

namespace
{

using namespace grisal::test;

class VignetteSpeech : public GuiTest
{
protected:
    int number(const char *name) { return child<QSpinBox>(panel, name).value(); }

    QString numbers()
    {
        return QStringLiteral("Centre %1 % from the left and %2 % from the top, radius %3 %, strength %4 %")
            .arg(number("spinBoxX"))
            .arg(number("spinBoxY"))
            .arg(number("spinBoxRadius"))
            .arg(number("spinBoxStrength"));
    }

    /// Records reported numbers that differ from the shown ones, for which the test fails at its end.
    void compareNumbers()
    {
        if (frame.accessibleValue() != numbers()) {
            m_different << frame.accessibleValue() + QStringLiteral(" instead of ") + numbers();
        }
    }

    void TearDown() override
    {
        EXPECT_TRUE(m_different.isEmpty()) << m_different.size() << " times, first:\n"
                                           << m_different.value(0).toStdString();
        GuiTest::TearDown();
    }

    void sendMouse(QEvent::Type type, double x, double y)
    {
        QMouseEvent event(type, QPointF(x, y), QPointF(x, y), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&frame, &event);
    }

    void turnWheel(int delta, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&frame, &event);
    }

    Vignette panel;
    VFrame &frame = child<VFrame>(panel, "frame");

private:
    QStringList m_different;
};

TEST_F(VignetteSpeech, HasTheShownNumbersAtEveryMousePosition)
{
    for (const int width : {100, 200, 333}) {
        frame.resize(width, 100);
        sendMouse(QEvent::MouseButtonPress, 0, 0);
        for (int tenth = -50; tenth <= 10 * width + 50; ++tenth) {
            sendMouse(QEvent::MouseMove, tenth / 10.0, 100 - tenth / 10.0 * 100 / width);
            compareNumbers();
        }
        sendMouse(QEvent::MouseButtonRelease, 0, 0);
    }
}

TEST_F(VignetteSpeech, HasTheShownNumbersBetweenWholePercents)
{
    for (int step = -100; step <= 10100; ++step) {
        const double fraction = step / 10000.0;
        panel.slotSetPosition({fraction, 1 - fraction});
        compareNumbers();
        panel.slotSetRadius(static_cast<float>(fraction));
        panel.slotSetStrength(static_cast<float>(1 - fraction));
        compareNumbers();
    }
}

TEST_F(VignetteSpeech, HasTheShownNumbersAfterEveryTurnOfTheMouseWheel)
{
    for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ControlModifier}) {
        for (const int delta : {120, -120, 15, -15, 1, -1}) {
            for (int turned = 0; turned <= 10000; turned += std::abs(delta)) {
                turnWheel(delta, modifiers);
                compareNumbers();
            }
        }
    }
}

// If the wheel has set the frame to almost 53 %, a slider at 53 does not change it, and 52 is shown.
TEST_F(VignetteSpeech, HasTheShownNumbersOfSlidersAfterTheMouseWheel)
{
    for (int turns = 0; turns < 30; ++turns) {
        turnWheel(15, Qt::NoModifier);
        turnWheel(15, Qt::ControlModifier);
        for (const int one : {1, -1, 0}) {
            child<QSlider>(panel, "sliderRadius").setValue(number("spinBoxRadius") + one);
            child<QSlider>(panel, "sliderStrength").setValue(number("spinBoxStrength") + one);
            compareNumbers();
            turnWheel(0, Qt::NoModifier);
            compareNumbers();
        }
    }
}

TEST_F(VignetteSpeech, HasTheShownNumbersOfEverySliderAndSpinBox)
{
    for (const char *slider : {"sliderX", "sliderY", "sliderRadius", "sliderStrength"}) {
        for (int percent = 0; percent < 100; ++percent) {
            child<QSlider>(panel, slider).setValue(percent);
            compareNumbers();
        }
    }
    for (const char *spinBox : {"spinBoxX", "spinBoxY", "spinBoxRadius", "spinBoxStrength"}) {
        for (int percent = 0; percent < 100; ++percent) {
            child<QSpinBox>(panel, spinBox).setValue(percent);
            compareNumbers();
        }
    }
}

TEST_F(VignetteSpeech, HasTheShownNumbersAfterReset)
{
    panel.slotSetPosition({0.507, 0.2});
    panel.slotSetRadius(0.509F);
    child<QPushButton>(panel, "buttonReset").click();
    compareNumbers();
}

// From any centre set by the mouse, including 0.29 of the width, which is shown as 28.
TEST_F(VignetteSpeech, ArrowKeyChangesTheNumberByOne)
{
    for (int percent = 1; percent < 98; ++percent) {
        panel.slotSetPosition({percent / 100.0, percent / 100.0});
        const int x = number("spinBoxX");
        const int y = number("spinBoxY");
        QTest::keyClick(&frame, Qt::Key_Right);
        EXPECT_EQ(number("spinBoxX"), x + 1);
        EXPECT_EQ(number("spinBoxY"), y);
        QTest::keyClick(&frame, Qt::Key_Down);
        QTest::keyClick(&frame, Qt::Key_Left);
        EXPECT_EQ(number("spinBoxX"), x);
        EXPECT_EQ(number("spinBoxY"), y + 1);
        compareNumbers();
    }
}

} // namespace
