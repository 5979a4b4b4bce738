// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>

namespace
{

using namespace grisal::test;

/// The editor with public event handlers and painting functions.
class OpenFrame : public CurveFrame
{
public:
    using CurveFrame::drawHistogram;
    using CurveFrame::mouseMoveEvent;
    using CurveFrame::mousePressEvent;
    using CurveFrame::mouseReleaseEvent;
};

class CurveFrameTest : public GuiTest
{
protected:
    CurveFrameTest()
    {
        // Without the border of one pixel, the contents are 200 x 100.
        frame.resize(202, 102);
        frame.setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
    }

    /// Sends a mouse event at a position in the unit square, measured from the top.
    void mouse(QEvent::Type type, double x, double y, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPointF place(x * 200, y * 100);
        const bool held = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, place, type == QEvent::MouseMove ? Qt::NoButton : button,
                          held ? button : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&frame, &event);
    }

    void press(double x, double y) { mouse(QEvent::MouseButtonPress, x, y); }
    void drag(double x, double y) { mouse(QEvent::MouseMove, x, y); }
    void release() { mouse(QEvent::MouseButtonRelease, 0, 0); }

    void expectMoved(float x, float y)
    {
        ASSERT_EQ(moved.count(), 1);
        EXPECT_FLOAT_EQ(moved[0][0].toFloat(), x);
        EXPECT_FLOAT_EQ(moved[0][1].toFloat(), y);
        moved.clear();
    }

    OpenFrame frame;
    QSignalSpy pressed{&frame, &CurveFrame::signalPressed};
    QSignalSpy moved{&frame, &CurveFrame::signalMoved};
};

TEST_F(CurveFrameTest, IsFlatAndSmoothInitially)
{
    const CurveFrame fresh;
    EXPECT_EQ(fresh.points().xs, (QVector<float>{0, 1}));
    EXPECT_EQ(fresh.points().ys, (QVector<float>{0.5F, 0.5F}));
    EXPECT_EQ(fresh.histogram(), QVector<float>(256, 0.3F));
    EXPECT_EQ(fresh.outputHistogram(),
              grisal::graphics::histogramBehind(QVector<float>(256, 0.3F), QVector<float>(256, 0.3F)));
    EXPECT_EQ(fresh.selected(), -1);
    EXPECT_EQ(fresh.interpolation(), 1);
    EXPECT_EQ(fresh.frameStyle(), QFrame::Box | QFrame::Plain);
}

TEST_F(CurveFrameTest, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    EXPECT_EQ(methodsOf(CurveFrame::staticMetaObject),
              "signalPressed() signalMoved(float,float) slotSetInterpolation(CurveFrame::interpolationType) "
              "slotSetActiveTo(float,float) slotSetInactive()");
}

TEST_F(CurveFrameTest, PressSelectsThePointInItsColumn)
{
    press(0.51, 0.9);
    EXPECT_EQ(frame.selected(), 1);
    EXPECT_EQ(frame.points().ys[1], 0.5F);
    EXPECT_EQ(pressed.count(), 1);
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CurveFrameTest, PressElsewhereAddsAPoint)
{
    press(0.25, 0.6);
    EXPECT_EQ(frame.points().xs, (QVector<float>{0, 0.25F, 0.5F, 1}));
    EXPECT_EQ(frame.points().ys, (QVector<float>{1, 0.6F, 0.5F, 0}));
    EXPECT_EQ(frame.selected(), 1);
    EXPECT_EQ(pressed.count(), 1);
}

TEST_F(CurveFrameTest, PressAfterTheLastPointAddsNone)
{
    frame.setPoints({0, 0.5F}, {1, 0});
    press(0.75, 0.5);
    EXPECT_EQ(frame.points().count(), 2);
    EXPECT_EQ(frame.selected(), -1);
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(CurveFrameTest, OtherButtonsDoNothing)
{
    mouse(QEvent::MouseButtonPress, 0.25, 0.5, Qt::RightButton);
    EXPECT_EQ(frame.points().count(), 3);
    EXPECT_EQ(frame.selected(), -1);
}

TEST_F(CurveFrameTest, DragEmitsOnceAtItsEnd)
{
    press(0.5, 0.5);
    drag(0.4, 0.3);
    drag(0.375, 0.25);
    EXPECT_TRUE(moved.isEmpty());
    EXPECT_EQ(frame.points().xs[1], 0.375F);
    release();
    expectMoved(0.375F, 0.25F);
    drag(0.8, 0.8);
    EXPECT_EQ(frame.points().xs[1], 0.375F);
}

TEST_F(CurveFrameTest, DragStopsAtTopAndBottom)
{
    press(0.5, 0.5);
    drag(0.5, -0.5);
    EXPECT_EQ(frame.points().ys[1], 0);
    drag(0.5, 1.5);
    EXPECT_EQ(frame.points().ys[1], 1);
}

TEST_F(CurveFrameTest, DragStopsAtANeighbourAndContinuesVertically)
{
    press(0.5, 0.5);
    drag(0.05, 0.5);
    drag(0.01, 0.25);
    EXPECT_EQ(frame.points().xs[1], 0.05F);
    EXPECT_EQ(frame.points().ys[1], 0.25F);
}

TEST_F(CurveFrameTest, ReleaseWithoutSelectionEmitsNothing)
{
    press(0.5, 0.5);
    frame.slotSetInactive();
    drag(0.3, 0.3);
    release();
    EXPECT_TRUE(moved.isEmpty());
    EXPECT_EQ(frame.points().xs[1], 0.5F);
}

TEST_F(CurveFrameTest, NullEventsAreLogged)
{
    expectWarning(QStringLiteral("ERROR: Invalid event"));
    frame.mousePressEvent(nullptr);
    frame.mouseMoveEvent(nullptr);
    frame.mouseReleaseEvent(nullptr);
    EXPECT_EQ(log.warnings().size(), 3);
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CurveFrameTest, SelectedPointCanBeSet)
{
    frame.slotSetActiveTo(0.3F, 0.3F);
    EXPECT_TRUE(moved.isEmpty());
    press(0.5, 0.5);
    frame.slotSetActiveTo(0.25F, 1.5F);
    expectMoved(0.25F, 1.5F);
    frame.slotSetActiveTo(0.99F, 0.125F);
    expectMoved(0.25F, 0.125F);
}

TEST_F(CurveFrameTest, DeleteRemovesTheSelectedPointAndSelectsTheOneBefore)
{
    press(0.5, 0.5);
    release();
    moved.clear();
    frame.deleteSelected();
    EXPECT_EQ(frame.points().xs, (QVector<float>{0, 1}));
    EXPECT_EQ(frame.selected(), 0);
    expectMoved(0, 1);
}

TEST_F(CurveFrameTest, DeleteEndsTheDragOfItsPoint)
{
    press(0.5, 0.5);
    frame.deleteSelected();
    moved.clear();
    drag(0.1, 0.1);
    release();
    EXPECT_EQ(frame.points().ys, (QVector<float>{1, 0}));
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CurveFrameTest, DeleteKeepsTheEndPoints)
{
    for (const double x : {0.0, 1.0}) {
        press(x, 0.5);
        frame.deleteSelected();
        EXPECT_EQ(frame.points().count(), 3);
        EXPECT_TRUE(moved.isEmpty());
    }
}

TEST_F(CurveFrameTest, SetPointsClampsHorizontallyOnly)
{
    press(0.5, 0.5);
    frame.setPoints({-1, 0.5F, 2}, {-1, 0.5F, 2});
    EXPECT_EQ(frame.points().xs, (QVector<float>{0, 0.5F, 1}));
    EXPECT_EQ(frame.points().ys, (QVector<float>{-1, 0.5F, 2}));
    EXPECT_EQ(frame.selected(), -1);
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CurveFrameTest, UnequalNumberOfCoordinatesIsLogged)
{
    expectWarning(QStringLiteral("xs.size() != ys.size()"));
    frame.setPoints({0, 0.5F, 1}, {1, 0.5F});
    EXPECT_EQ(frame.points().ys, (QVector<float>{1, 0.5F, 0}));
    frame.setPoints({0, 1}, {1, 0.5F, 0.25F});
    EXPECT_EQ(frame.points().ys, (QVector<float>{1, 0.5F}));
    EXPECT_EQ(log.warnings().size(), 2);
}

TEST_F(CurveFrameTest, SamplesDependOnTheInterpolation)
{
    frame.setPoints({0, 0.5F, 1}, {1, 0.25F, 0});
    EXPECT_EQ(frame.sample(256), grisal::graphics::smoothCurve(frame.points(), 256));
    frame.slotSetInterpolation(CurveFrame::Linear);
    EXPECT_EQ(frame.interpolation(), 0);
    EXPECT_EQ(frame.sample(256), grisal::graphics::linearCurve(frame.points(), 256));
    EXPECT_EQ(frame.sample(10), grisal::graphics::linearCurve(frame.points(), 10));
}

TEST_F(CurveFrameTest, HistogramOfWrongSizeIsLoggedAndRejected)
{
    QVector<float> histogram(256, 0.5F);
    frame.setHistogram(histogram);
    expectWarning(QStringLiteral("curves: wrong histogram size"));
    frame.setHistogram(QVector<float>(255, 0.1F));
    EXPECT_EQ(frame.histogram(), histogram);
}

// During a drag only the line in the frame follows the point; samples and histogram change at the release.
TEST_F(CurveFrameTest, PaintingDoesNotChangeTheSamples)
{
    QVector<float> histogram(256, 0.0F);
    histogram[128] = 1;
    frame.setHistogram(histogram);
    frame.slotSetInterpolation(CurveFrame::Linear);
    frame.sample(256);
    const QVector<float> before = frame.outputHistogram();
    press(0.5, 0.5);
    const QImage shown = frame.grab().toImage();
    drag(0.5, 0.1);
    EXPECT_NE(frame.grab().toImage(), shown);
    EXPECT_EQ(frame.outputHistogram(), before);
    frame.sample(256);
    EXPECT_NE(frame.outputHistogram(), before);
}

TEST_F(CurveFrameTest, BackgroundIsLightAtTheTopRight)
{
    frame.setHistogram(QVector<float>(256, 0.0F));
    const QImage shown = frame.grab().toImage();
    const int ratio = qRound(shown.devicePixelRatio());
    const auto grey = [&](int x, int y) { return QColor(shown.pixel(x * ratio, y * ratio)).red(); };
    EXPECT_NEAR(grey(185, 12), 223, 2);
    EXPECT_NEAR(grey(10, 10), 163, 2);
}

TEST_F(CurveFrameTest, GridLinesDivideTheWholeFrame)
{
    frame.setHistogram(QVector<float>(256, 0.0F));
    const QImage shown = frame.grab().toImage();
    const int ratio = qRound(shown.devicePixelRatio());
    const auto grey = [&](int x, int y) { return QColor(shown.pixel(x * ratio, y * ratio)).red(); };
    // A line may cover half of each of two pixels.
    const auto columnIsDark = [&](int x, int y) { return grey(x - 4, y) - std::min(grey(x, y), grey(x + 1, y)) > 8; };
    const auto rowIsDark = [&](int x, int y) { return grey(x, y - 4) - std::min(grey(x, y), grey(x, y + 1)) > 8; };
    for (const int end : {5, 95}) {
        for (const int x : {50, 100, 150}) {
            EXPECT_TRUE(columnIsDark(x, end)) << x << ", " << end;
        }
        for (const int y : {25, 50, 75}) {
            EXPECT_TRUE(rowIsDark(2 * end, y)) << y << ", " << end;
        }
    }
    EXPECT_FALSE(columnIsDark(199, 95));
    EXPECT_FALSE(rowIsDark(190, 99));
}

TEST_F(CurveFrameTest, HistogramCurveAndPointsHaveDifferentColours)
{
    QVector<float> histogram(256, 0.0F);
    histogram[192] = 2;
    frame.setHistogram(histogram);
    press(0.5, 0.5);
    const QImage shown = frame.grab().toImage();
    const int ratio = qRound(shown.devicePixelRatio());
    const auto at = [&](int x, int y) { return QColor(shown.pixel(x * ratio, y * ratio)); };
    const QColor selected = at(100, 50);
    EXPECT_GT(selected.red() - selected.blue(), 100);
    EXPECT_EQ(at(5, 96), QColor(Qt::white));
    EXPECT_LT(at(50, 75).red(), 40);
    const int ground = at(140, 5).red();
    EXPECT_LT(at(150, 5).red(), ground - 40);
}

TEST_F(CurveFrameTest, EmptyHistogramIsLogged)
{
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    frame.drawHistogram(painter, {});
    EXPECT_TRUE(log.contains(QStringLiteral("No histogram set")));
}

} // namespace
