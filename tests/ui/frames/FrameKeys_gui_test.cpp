// SPDX-License-Identifier: MIT
// Keyboard use of the frames.
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/VFrame.h"
#include "ui/frames/YUVFrame.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace
{

using namespace grisal::test;

/// A frame between two other controls.
template <typename Frame>
class KeysTest : public GuiTest
{
protected:
    KeysTest()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(frame);
        layout->addWidget(after);
        frame->setFixedSize(202, 102);
    }

    void SetUp() override
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        before->setFocus();
        press(Qt::Key_Tab);
        ASSERT_TRUE(frame->hasFocus());
    }

    /// Sends a key to the window, as the desktop does.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    void expectLeftByTab()
    {
        press(Qt::Key_Tab);
        EXPECT_TRUE(after->hasFocus());
        press(Qt::Key_Backtab);
        EXPECT_TRUE(frame->hasFocus());
        press(Qt::Key_Backtab);
        EXPECT_TRUE(before->hasFocus());
    }

    void expectFocusSeen()
    {
        const QImage with = frame->grab().toImage();
        frame->clearFocus();
        EXPECT_NE(frame->grab().toImage(), with);
    }

    QWidget window;
    QLineEdit *before = new QLineEdit;
    Frame *frame = new Frame;
    QLineEdit *after = new QLineEdit;
};

class WheelKeys : public KeysTest<YUVFrame>
{
protected:
    WheelKeys() { frame->slotSetRGB({85, 85, 85}); }

    void expectPicked(float r, float g, float b)
    {
        ASSERT_EQ(picked.count(), 1);
        const QVariantList weights = picked.takeFirst();
        EXPECT_NEAR(weights[0].toFloat(), r, 1e-3);
        EXPECT_NEAR(weights[1].toFloat(), g, 1e-3);
        EXPECT_NEAR(weights[2].toFloat(), b, 1e-3);
    }

    QSignalSpy picked{frame, &YUVFrame::signalWeights};
};

TEST_F(WheelKeys, ArrowsMoveTheMarkerByOnePercentAndEmit)
{
    press(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(frame->markerX(), 0.51);
    expectPicked(85, 85 - 6.82F, 85 + 6.82F);
    press(Qt::Key_Left);
    expectPicked(85, 85, 85);
    press(Qt::Key_Up);
    EXPECT_DOUBLE_EQ(frame->markerY(), 0.49);
    expectPicked(85 + 6.82F, 85 - 6.82F, 85);
    press(Qt::Key_Down);
    expectPicked(85, 85, 85);
}

TEST_F(WheelKeys, ArrowsStopAtTheEdge)
{
    for (int i = 0; i < 60; ++i) {
        press(Qt::Key_Left);
        press(Qt::Key_Down);
    }
    EXPECT_EQ(frame->markerX(), 0);
    EXPECT_EQ(frame->markerY(), 1);
}

TEST_F(WheelKeys, PageKeysChangeTheLevelLikeTheMouseWheel)
{
    press(Qt::Key_PageUp);
    EXPECT_FLOAT_EQ(frame->luma(), 86.2F);
    expectPicked(86.2F, 86.2F, 86.2F);
    press(Qt::Key_PageDown);
    expectPicked(85, 85, 85);
}

TEST_F(WheelKeys, OtherKeysAreIgnored)
{
    press(Qt::Key_A);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_TRUE(picked.isEmpty());
    expectLeftByTab();
}

TEST_F(WheelKeys, FocusIsVisible)
{
    expectFocusSeen();
}

/// The frame with a receiver that shows its centre in percent.
class VignetteKeys : public KeysTest<VFrame>
{
protected:
    VignetteKeys()
    {
        QObject::connect(frame, &VFrame::signalPosition, frame, [this](QPointF centre) {
            frame->setPercents({static_cast<int>(centre.x() * 100), static_cast<int>(centre.y() * 100), 50, 50});
        });
    }

    QSignalSpy position{frame, &VFrame::signalPosition};
    QSignalSpy radius{frame, &VFrame::signalRadius};
    QSignalSpy strength{frame, &VFrame::signalStrength};
};

TEST_F(VignetteKeys, ArrowsMoveTheCentreByOnePercent)
{
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    ASSERT_EQ(position.count(), 3);
    const QPointF last = position.last()[0].toPointF();
    EXPECT_DOUBLE_EQ(last.x(), 0.52);
    EXPECT_DOUBLE_EQ(last.y(), 0.49);
    EXPECT_EQ(frame->posX(), last.x());
    EXPECT_EQ(frame->posY(), last.y());
    press(Qt::Key_Left);
    press(Qt::Key_Down);
    EXPECT_DOUBLE_EQ(frame->posX(), 0.51);
    EXPECT_DOUBLE_EQ(frame->posY(), 0.5);
}

TEST_F(VignetteKeys, ArrowsStopAtTheEdge)
{
    frame->slotSetX(0.015F);
    frame->slotSetY(1.7F);
    frame->setPercents({1, 99, 50, 50});
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(frame->posX(), 0);
    EXPECT_FLOAT_EQ(static_cast<float>(frame->posY()), 1.7F);
    press(Qt::Key_Down);
    EXPECT_EQ(frame->posY(), 1);
}

TEST_F(VignetteKeys, PageKeysChangeRadiusAndStrengthLikeTheMouseWheel)
{
    press(Qt::Key_PageUp);
    ASSERT_EQ(radius.count(), 1);
    EXPECT_FLOAT_EQ(radius[0][0].toFloat(), 0.512F);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    ASSERT_EQ(strength.count(), 1);
    EXPECT_FLOAT_EQ(strength[0][0].toFloat(), 0.488F);
    EXPECT_EQ(radius.count(), 1);
    EXPECT_TRUE(position.isEmpty());
}

TEST_F(VignetteKeys, OtherKeysAreIgnored)
{
    press(Qt::Key_A);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(position.isEmpty());
    expectLeftByTab();
}

TEST_F(VignetteKeys, FocusIsVisible)
{
    expectFocusSeen();
}

class CurveKeys : public KeysTest<CurveFrame>
{
protected:
    CurveKeys() { frame->setPoints({0, 0.5F, 1}, {1, 0.5F, 0}); }

    /// Expects the signals that a click or a drag of the mouse would emit.
    void expectEmitted(float x, float y)
    {
        EXPECT_EQ(pressed.count(), 1);
        ASSERT_EQ(moved.count(), 1);
        EXPECT_FLOAT_EQ(moved[0][0].toFloat(), x);
        EXPECT_FLOAT_EQ(moved[0][1].toFloat(), y);
        pressed.clear();
        moved.clear();
    }

    QSignalSpy pressed{frame, &CurveFrame::signalPressed};
    QSignalSpy moved{frame, &CurveFrame::signalMoved};
};

TEST_F(CurveKeys, PageKeysSelectTheNextOrPreviousPoint)
{
    press(Qt::Key_PageDown);
    EXPECT_EQ(frame->selected(), 0);
    expectEmitted(0, 1);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(frame->selected(), 2);
    press(Qt::Key_PageUp);
    EXPECT_EQ(frame->selected(), 1);
    frame->slotSetInactive();
    press(Qt::Key_PageUp);
    EXPECT_EQ(frame->selected(), 2);
}

TEST_F(CurveKeys, ArrowsMoveThePoint)
{
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    pressed.clear();
    moved.clear();
    press(Qt::Key_Right);
    expectEmitted(0.51F, 0.5F);
    press(Qt::Key_Up);
    expectEmitted(0.51F, 0.49F);
    press(Qt::Key_Left);
    press(Qt::Key_Down);
    EXPECT_FLOAT_EQ(frame->points().xs[1], 0.5F);
    EXPECT_FLOAT_EQ(frame->points().ys[1], 0.5F);
}

TEST_F(CurveKeys, ArrowSelectsTheFirstPointIfNoneIsSelected)
{
    press(Qt::Key_Up);
    EXPECT_EQ(frame->selected(), 0);
    expectEmitted(0, 1);
    press(Qt::Key_Up);
    expectEmitted(0, 0.99F);
}

TEST_F(CurveKeys, PointsStayInTheFrameAndBetweenTheirNeighbours)
{
    press(Qt::Key_PageDown);
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Down);
        press(Qt::Key_Right);
    }
    EXPECT_EQ(frame->points().xs[0], 0);
    EXPECT_EQ(frame->points().ys[0], 1);
    press(Qt::Key_PageDown);
    for (int i = 0; i < 60; ++i) {
        press(Qt::Key_Right);
    }
    EXPECT_LT(frame->points().xs[1], 0.98F);
    EXPECT_GT(frame->points().xs[1], 0.96F);
}

TEST_F(CurveKeys, InsertAddsAPointOnTheCurve)
{
    frame->slotSetInterpolation(CurveFrame::Linear);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    pressed.clear();
    moved.clear();
    press(Qt::Key_Insert);
    EXPECT_EQ(frame->points().xs, (QVector<float>{0, 0.5F, 0.75F, 1}));
    EXPECT_FLOAT_EQ(frame->points().ys[2], 0.25F);
    EXPECT_EQ(frame->selected(), 2);
    expectEmitted(0.75F, 0.25F);
    frame->slotSetInactive();
    press(Qt::Key_Insert);
    EXPECT_EQ(frame->points().xs[1], 0.25F);
}

TEST_F(CurveKeys, InsertAtTheLastPointAddsAPointBeforeIt)
{
    press(Qt::Key_PageUp);
    press(Qt::Key_Insert);
    EXPECT_EQ(frame->points().xs, (QVector<float>{0, 0.5F, 0.75F, 1}));
    EXPECT_EQ(frame->selected(), 2);
}

TEST_F(CurveKeys, InsertAddsNothingWithoutSpaceForAPoint)
{
    frame->setPoints({0, 0.039F, 1}, {1, 0.5F, 0});
    press(Qt::Key_Insert);
    EXPECT_EQ(frame->points().count(), 3);
    frame->setPoints({0.5F}, {0.5F});
    press(Qt::Key_Insert);
    EXPECT_EQ(frame->points().count(), 1);
    frame->setPoints({}, {});
    press(Qt::Key_Insert);
    press(Qt::Key_PageDown);
    press(Qt::Key_Up);
    EXPECT_EQ(frame->selected(), -1);
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CurveKeys, KeysAreIgnoredDuringADrag)
{
    QTest::mousePress(frame, Qt::LeftButton, {}, frame->contentsRect().center());
    moved.clear();
    press(Qt::Key_Up);
    press(Qt::Key_PageDown);
    EXPECT_EQ(frame->selected(), 1);
    EXPECT_TRUE(moved.isEmpty());
    QTest::mouseRelease(frame, Qt::LeftButton, {}, frame->contentsRect().center());
    EXPECT_EQ(moved.count(), 1);
}

// Otherwise the page keys would also scroll the panels.
TEST_F(CurveKeys, KeysThatEditAreNotPassedOn)
{
    for (const auto key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_Left, Qt::Key_Up}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(frame, &event);
        EXPECT_TRUE(event.isAccepted()) << key;
    }
    QKeyEvent other(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(frame, &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(CurveKeys, OtherKeysAreIgnored)
{
    press(Qt::Key_A);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_EQ(frame->points().count(), 3);
    expectLeftByTab();
}

TEST_F(CurveKeys, FocusIsVisible)
{
    expectFocusSeen();
}

} // namespace
