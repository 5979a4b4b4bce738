// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/VFrame.h"
#include "ui/frames/VignetteShape.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace
{

using namespace grisal::test;

constexpr int marksReach = 6; // pixels around the centre that its mark may cover

class VFrameTest : public GuiTest
{
protected:
    VFrameTest() { frame.resize(300, 200); }

    void show()
    {
        frame.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    }

    void sendMouse(QEvent::Type type, double x, double y)
    {
        QMouseEvent event(type, QPointF(x, y), QPointF(x, y), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&frame, &event);
    }

    void turnWheel(QPoint delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(QPointF(5, 5), frame.mapToGlobal(QPointF(5, 5)), QPoint(), delta, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&frame, &event);
    }

    /// Expects one emission since the last call.
    void expectPosition(double x, double y)
    {
        ASSERT_EQ(position.count(), 1);
        const QPointF emitted = position.takeFirst()[0].toPointF();
        EXPECT_DOUBLE_EQ(emitted.x(), x);
        EXPECT_DOUBLE_EQ(emitted.y(), y);
        EXPECT_DOUBLE_EQ(frame.posX(), x);
        EXPECT_DOUBLE_EQ(frame.posY(), y);
    }

    static void expectOne(QSignalSpy &spy, float value)
    {
        ASSERT_EQ(spy.count(), 1);
        EXPECT_FLOAT_EQ(spy.takeFirst()[0].toFloat(), value);
    }

    QImage shown() { return frame.grab().toImage(); }
    static int greyAt(const QImage &image, int x, int y) { return qGray(image.pixel(x, y)); }

    VFrame frame;
    QSignalSpy position{&frame, &VFrame::signalPosition};
    QSignalSpy radius{&frame, &VFrame::signalRadius};
    QSignalSpy strength{&frame, &VFrame::signalStrength};
};

TEST_F(VFrameTest, AllValuesAreOneHalfInitially)
{
    EXPECT_EQ(frame.posX(), 0.5);
    EXPECT_EQ(frame.posY(), 0.5);
    EXPECT_EQ(frame.radius(), 0.5F);
    EXPECT_EQ(frame.strength(), 0.5F);
    EXPECT_EQ(frame.focusPolicy(), Qt::StrongFocus);
}

TEST_F(VFrameTest, HeightIsTwoThirdsOfTheWidth)
{
    EXPECT_TRUE(frame.sizePolicy().hasHeightForWidth());
    EXPECT_EQ(frame.heightForWidth(300), 200);
}

TEST_F(VFrameTest, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    EXPECT_EQ(methodsOf(VFrame::staticMetaObject),
              "signalPosition(QPointF) signalRadius(float) signalStrength(float) slotSetX(float) slotSetY(float) "
              "slotSetRadius(float) slotSetStrength(float)");
}

TEST_F(VFrameTest, SettingTheCentreEmitsNothing)
{
    frame.slotSetX(0.75F);
    frame.slotSetY(-0.25F);
    EXPECT_EQ(frame.posX(), 0.75);
    EXPECT_EQ(frame.posY(), -0.25);
    EXPECT_TRUE(position.isEmpty());
}

TEST_F(VFrameTest, SettingRadiusAndStrengthEmitsThem)
{
    frame.slotSetRadius(0.25F);
    EXPECT_EQ(frame.radius(), 0.25F);
    expectOne(radius, 0.25F);
    frame.slotSetStrength(1);
    EXPECT_EQ(frame.strength(), 1);
    expectOne(strength, 1);
    EXPECT_EQ(frame.radius(), 0.25F);
    EXPECT_TRUE(radius.isEmpty());
}

TEST_F(VFrameTest, ValuesBeyondTheirLimitsAreIgnored)
{
    for (const float value : {-0.01F, 1.01F}) {
        frame.slotSetRadius(value);
        frame.slotSetStrength(value);
    }
    EXPECT_EQ(frame.radius(), 0.5F);
    EXPECT_EQ(frame.strength(), 0.5F);
    EXPECT_TRUE(radius.isEmpty());
    EXPECT_TRUE(strength.isEmpty());
}

TEST_F(VFrameTest, NearlyTheSameValuesAreIgnored)
{
    frame.slotSetRadius(0.500004F);
    frame.slotSetStrength(0.499996F);
    EXPECT_EQ(frame.radius(), 0.5F);
    EXPECT_EQ(frame.strength(), 0.5F);
    EXPECT_TRUE(radius.isEmpty());
    EXPECT_TRUE(strength.isEmpty());
}

TEST_F(VFrameTest, DragEmitsPositionsUntilTheButtonIsReleased)
{
    show();
    QTest::mouseMove(&frame, QPoint(30, 30));
    EXPECT_TRUE(position.isEmpty());
    QTest::mousePress(&frame, Qt::LeftButton, {}, QPoint(75, 20));
    expectPosition(0.25, 0.1);
    QTest::mouseMove(&frame, QPoint(150, 150));
    expectPosition(0.5, 0.75);
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, QPoint(150, 150));
    QTest::mouseMove(&frame, QPoint(160, 50));
    EXPECT_TRUE(position.isEmpty());
}

TEST_F(VFrameTest, OnlyTheLeftButtonSetsTheCentre)
{
    show();
    QTest::mousePress(&frame, Qt::RightButton, {}, QPoint(20, 20));
    QTest::mouseMove(&frame, QPoint(50, 50));
    QTest::mouseRelease(&frame, Qt::RightButton, {}, QPoint(50, 50));
    EXPECT_TRUE(position.isEmpty());
}

TEST_F(VFrameTest, OtherButtonsDoNotEndADrag)
{
    show();
    QTest::mousePress(&frame, Qt::LeftButton, {}, QPoint(75, 20));
    QTest::mouseClick(&frame, Qt::RightButton, {}, QPoint(75, 20));
    position.clear();
    QTest::mouseMove(&frame, QPoint(150, 150));
    expectPosition(0.5, 0.75);
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, QPoint(150, 150));
}

TEST_F(VFrameTest, DragContinuesBeyondTheEdge)
{
    sendMouse(QEvent::MouseButtonPress, 0, 0);
    expectPosition(0, 0);
    sendMouse(QEvent::MouseMove, 450, -51);
    expectPosition(1.5, -0.255);
}

TEST_F(VFrameTest, FrameWithoutHeightIgnoresPresses)
{
    frame.resize(300, 0);
    sendMouse(QEvent::MouseButtonPress, 30, 0);
    EXPECT_TRUE(position.isEmpty());
    EXPECT_EQ(frame.posX(), 0.5);
}

TEST_F(VFrameTest, TheWheelChangesTheRadius)
{
    turnWheel({0, 120});
    expectOne(radius, 0.512F);
    EXPECT_FLOAT_EQ(frame.radius(), 0.512F);
    turnWheel({0, -240});
    expectOne(radius, 0.488F);
    EXPECT_TRUE(strength.isEmpty());
    EXPECT_EQ(frame.strength(), 0.5F);
}

TEST_F(VFrameTest, TheWheelWithControlChangesTheStrength)
{
    turnWheel({0, -120}, Qt::ControlModifier);
    expectOne(strength, 0.488F);
    turnWheel({0, 1}, Qt::ControlModifier | Qt::ShiftModifier);
    expectOne(strength, 0.4881F);
    EXPECT_TRUE(radius.isEmpty());
    EXPECT_EQ(frame.radius(), 0.5F);
}

TEST_F(VFrameTest, HorizontalWheelChangesNothing)
{
    turnWheel({120, 0});
    EXPECT_TRUE(radius.isEmpty());
    EXPECT_EQ(frame.radius(), 0.5F);
}

TEST_F(VFrameTest, WheelTurnBeyondTheLimitsIsIgnored)
{
    frame.slotSetRadius(0.995F);
    frame.slotSetStrength(0.005F);
    radius.clear();
    strength.clear();
    turnWheel({0, 120});
    turnWheel({0, -120}, Qt::ControlModifier);
    EXPECT_EQ(frame.radius(), 0.995F);
    EXPECT_EQ(frame.strength(), 0.005F);
    EXPECT_TRUE(radius.isEmpty());
    EXPECT_TRUE(strength.isEmpty());
}

TEST_F(VFrameTest, PaintsTheVignette)
{
    frame.slotSetX(0.2F);
    frame.slotSetY(0.7F);
    frame.slotSetRadius(1);
    frame.slotSetStrength(0.9F);
    const QImage picture = vignettePicture({{20, 70, 0}, 90, 100}, QSize(300, 200));
    const QImage image = shown();
    int different = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 240; ++x) { // the radius ends at 60 + 250
            const bool mark = std::abs(x - 60) <= marksReach && std::abs(y - 140) <= marksReach;
            different += mark || greyAt(image, x, y) == greyAt(picture, x, y) ? 0 : 1;
        }
    }
    EXPECT_EQ(different, 0);
}

TEST_F(VFrameTest, EveryChangeIsShown)
{
    show();
    const auto changes = [this](auto change) {
        const QImage before = shown();
        change();
        return shown() != before;
    };
    EXPECT_TRUE(changes([this] { frame.slotSetX(0.3F); }));
    EXPECT_TRUE(changes([this] { frame.slotSetY(0.3F); }));
    EXPECT_TRUE(changes([this] { frame.slotSetRadius(0.3F); }));
    EXPECT_TRUE(changes([this] { frame.slotSetStrength(0.3F); }));
    EXPECT_TRUE(changes([this] { turnWheel({0, 120}); }));
    EXPECT_TRUE(changes([this] { QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(20, 20)); }));
}

// Without strength the image is uniform, so all pixels that differ belong to a mark.
TEST_F(VFrameTest, MarksAreAtTheCentreAndAtTheRadius)
{
    frame.slotSetX(0.4F);
    frame.slotSetY(0.6F);
    frame.slotSetRadius(0.24F); // 60 of 250
    frame.slotSetStrength(0);
    const QImage image = shown();
    for (const QPoint place : {QPoint(124, 120), QPoint(116, 120), QPoint(120, 124), QPoint(120, 116), QPoint(180, 120),
                               QPoint(60, 120), QPoint(120, 180), QPoint(120, 60)}) {
        EXPECT_LT(greyAt(image, place.x(), place.y()), 60) << place.x() << ", " << place.y();
    }
    EXPECT_EQ(greyAt(image, 120, 120), 160);
    EXPECT_EQ(greyAt(image, 150, 120), 160);
    EXPECT_EQ(greyAt(image, 250, 30), 160);
}

TEST_F(VFrameTest, MarksAreVisibleOnBlack)
{
    frame.slotSetRadius(0);
    const QImage image = shown();
    EXPECT_EQ(greyAt(image, 20, 20), 0);
    EXPECT_GT(greyAt(image, 150 + 5, 100) + greyAt(image, 150 + 3, 100), 250);
}

TEST_F(VFrameTest, CentreBeyondTheEdgeIsMarkedAtTheEdge)
{
    frame.slotSetX(-0.5F);
    frame.slotSetY(1.5F);
    frame.slotSetRadius(1);
    const QImage beyond = shown();
    frame.slotSetX(0);
    frame.slotSetY(1);
    EXPECT_EQ(shown(), beyond);
    EXPECT_LT(greyAt(beyond, 4, 198), 60);
}

TEST_F(VFrameTest, PaintsOnlyInsideTheContentsMargins)
{
    frame.setContentsMargins(20, 20, 20, 20);
    frame.slotSetX(0);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::green);
    frame.setPalette(palette);
    const QImage image = shown();
    int painted = 0;
    for (int y = 0; y < 200; ++y) {
        painted += image.pixelColor(19, y) == QColor(Qt::green) ? 0 : 1;
    }
    EXPECT_EQ(painted, 0);
    EXPECT_NE(image.pixelColor(21, 100), QColor(Qt::green));
}

TEST_F(VFrameTest, KeyboardFocusIsVisible)
{
    show();
    frame.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
    frame.clearFocus();
    EXPECT_GT(greyAt(shown(), 1, 100), 90);
    frame.setFocus();
    EXPECT_LT(greyAt(shown(), 1, 100), 40);
}

TEST_F(VFrameTest, HeightFollowsTheProportionsOfThePhotograph)
{
    EXPECT_EQ(frame.heightForWidth(300), 200);
    frame.setImageSize({4000, 1000});
    EXPECT_EQ(frame.heightForWidth(300), 75);
    frame.setImageSize({1000, 4000});
    EXPECT_EQ(frame.heightForWidth(300), 300);
    frame.setImageSize({});
    EXPECT_EQ(frame.heightForWidth(300), 200);
}

TEST_F(VFrameTest, UprightPhotographIsLimitedToTheLongerSide)
{
    frame.setImageSize({1000, 4000});
    frame.limitTo(300);
    EXPECT_EQ(frame.maximumWidth(), 75);
    EXPECT_EQ(frame.heightForWidth(300), 300);
    frame.setImageSize({4000, 1000});
    frame.limitTo(300);
    EXPECT_EQ(frame.maximumWidth(), 300);
}

} // namespace
