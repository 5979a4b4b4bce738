// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/YUVFrame.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <array>

namespace
{

using namespace grisal::test;
using grisal::graphics::ColorRGB;

/// The wheel with public event handlers and painting functions.
class OpenFrame : public YUVFrame
{
public:
    using YUVFrame::drawWheel;
    using YUVFrame::mouseMoveEvent;
    using YUVFrame::mousePressEvent;
    using YUVFrame::mouseReleaseEvent;
};

class YUVFrameTest : public GuiTest
{
protected:
    YUVFrameTest() { frame.resize(200, 100); }

    /// Expects one emission since the last call.
    void expectPicked(float r, float g, float b)
    {
        ASSERT_EQ(picked.count(), 1);
        const QVariantList weights = picked.takeFirst();
        EXPECT_NEAR(weights[0].toFloat(), r, 1e-3);
        EXPECT_NEAR(weights[1].toFloat(), g, 1e-3);
        EXPECT_NEAR(weights[2].toFloat(), b, 1e-3);
    }

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

    void turnWheel(int delta)
    {
        QWheelEvent event(QPointF(5, 5), frame.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, delta), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&frame, &event);
    }

    OpenFrame frame;
    QSignalSpy picked{&frame, &YUVFrame::signalWeights};
};

TEST_F(YUVFrameTest, IsInTheMiddleModeAtFullLevelInitially)
{
    EXPECT_EQ(frame.colorSpace(), 1);
    EXPECT_EQ(frame.plane(), *chromaPlaneOf(1));
    EXPECT_EQ(frame.luma(), 255);
    EXPECT_EQ(frame.markerX(), 0);
    EXPECT_EQ(frame.markerY(), 0);
    EXPECT_EQ(frame.focusPolicy(), Qt::WheelFocus);
    EXPECT_EQ(frame.wheelImage(), wheelImageOf(*chromaPlaneOf(1), 255));
}

TEST_F(YUVFrameTest, SignalsAndSlotsHaveFixedNamesAndOrder)
{
    EXPECT_EQ(methodsOf(YUVFrame::staticMetaObject),
              "signalWeights(float,float,float) slotSetRGB(grisal::graphics::ColorRGB<float>) slotSetLuma(float)");
}

TEST_F(YUVFrameTest, GreyWeightsCentreTheMarkerAndEmitNothing)
{
    frame.slotSetRGB({85, 85, 85});
    EXPECT_DOUBLE_EQ(frame.markerX(), 0.5);
    EXPECT_DOUBLE_EQ(frame.markerY(), 0.5);
    EXPECT_FLOAT_EQ(frame.luma(), 85);
    EXPECT_EQ(frame.wheelImage(), wheelImageOf(*chromaPlaneOf(1), frame.luma()));
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(YUVFrameTest, SameWeightsDoNotRedrawTheWheel)
{
    frame.slotSetRGB({100, 50, 0});
    const auto key = frame.wheelImage().cacheKey();
    frame.slotSetRGB({100, 50, 0});
    EXPECT_EQ(frame.wheelImage().cacheKey(), key);
    frame.slotSetRGB({100, 50, 1});
    EXPECT_NE(frame.wheelImage().cacheKey(), key);
}

TEST_F(YUVFrameTest, WeightsPutTheMarkerAtTheirChroma)
{
    frame.slotSetRGB({30, 60, 90});
    EXPECT_NEAR(frame.chromaU(), 30, 1e-4);
    EXPECT_NEAR(frame.chromaV(), -30, 1e-4);
    EXPECT_NEAR(frame.markerX(), (30.0 + 341) / 682, 1e-6);
    EXPECT_NEAR(frame.markerY(), (30.0 + 341) / 682, 1e-6);
}

// The mean weights green slightly more than the others: with equal weights this level would be 0.
TEST_F(YUVFrameTest, WeightsWithSumZeroHaveALevelAboveZero)
{
    frame.slotSetRGB({-100, 200, -100});
    EXPECT_NEAR(frame.luma(), 2e-10, 1e-12);
}

// 3 * 85.1 is half way between two floats; the third of green determines which one is emitted.
TEST_F(YUVFrameTest, PickComputesGreenWithItsOwnThird)
{
    frame.slotSetLuma(85);
    sendMouse(QEvent::MouseButtonPress, 0, 0);
    turnWheel(10);
    picked.clear();
    sendMouse(QEvent::MouseMove, -200, -100);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked[0][0].toFloat(), 512);
    EXPECT_EQ(picked[0][1].toFloat(), 255.299988F);
    EXPECT_EQ(picked[0][2].toFloat(), -512);
}

TEST_F(YUVFrameTest, ChangedLevelKeepsTheMarkerAndEmitsNothing)
{
    frame.slotSetRGB({30, 60, 90});
    const double x = frame.markerX();
    frame.slotSetLuma(200);
    EXPECT_EQ(frame.luma(), 200);
    EXPECT_EQ(frame.markerX(), x);
    EXPECT_NEAR(frame.chromaU(), 30, 1e-4);
    EXPECT_EQ(frame.wheelImage(), wheelImageOf(*chromaPlaneOf(1), 200));
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(YUVFrameTest, LevelsAreClamped)
{
    frame.slotSetLuma(600);
    EXPECT_EQ(frame.luma(), 512);
    frame.slotSetLuma(-600);
    EXPECT_EQ(frame.luma(), -512);
}

TEST_F(YUVFrameTest, PressEmitsWeights)
{
    frame.slotSetLuma(85);
    sendMouse(QEvent::MouseButtonPress, 0, 0);
    EXPECT_EQ(frame.markerX(), 0);
    EXPECT_EQ(frame.markerY(), 0);
    expectPicked(426, 85, -256);
}

TEST_F(YUVFrameTest, OnlyTheLeftButtonPicks)
{
    show();
    QTest::mouseClick(&frame, Qt::RightButton, {}, QPoint(20, 20));
    QTest::mouseMove(&frame, QPoint(50, 50));
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(YUVFrameTest, DragEmitsWeightsUntilTheButtonIsReleased)
{
    show();
    frame.slotSetLuma(85);
    QTest::mouseMove(&frame, QPoint(30, 30));
    EXPECT_TRUE(picked.isEmpty());
    QTest::mousePress(&frame, Qt::LeftButton, {}, QPoint(100, 50));
    expectPicked(85, 85, 85);
    QTest::mouseMove(&frame, QPoint(150, 50));
    expectPicked(85, -85.5F, 255.5F);
    QTest::mouseRelease(&frame, Qt::LeftButton, {}, QPoint(150, 50));
    QTest::mouseMove(&frame, QPoint(160, 50));
    EXPECT_TRUE(picked.isEmpty());
}

// The weights are clamped to their limits, not to the edge of the wheel.
TEST_F(YUVFrameTest, DragContinuesBeyondTheEdge)
{
    frame.slotSetLuma(85);
    sendMouse(QEvent::MouseButtonPress, 100, 50);
    picked.clear();
    sendMouse(QEvent::MouseMove, 300, -25.5);
    EXPECT_DOUBLE_EQ(frame.markerX(), 1.5);
    EXPECT_DOUBLE_EQ(frame.markerY(), -0.255);
    EXPECT_NEAR(frame.chromaU(), 682, 1e-3);
    EXPECT_NEAR(frame.chromaV(), 341 + 0.255 * 682, 1e-3);
    expectPicked(512, -512, 512);
}

TEST_F(YUVFrameTest, AtTheHighestLevelAllOfTheUpperHalfIsFullRed)
{
    show();
    frame.slotSetLuma(512);
    QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(100, 49));
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked[0][0].toFloat(), 512);
}

TEST_F(YUVFrameTest, NullEventsAreLoggedAndEmitNothing)
{
    expectWarning(QStringLiteral("Invalid mouse event"));
    frame.mousePressEvent(nullptr);
    EXPECT_TRUE(picked.isEmpty());
    EXPECT_EQ(log.warnings().size(), 1);
    frame.mouseMoveEvent(nullptr);
    EXPECT_EQ(log.warnings().size(), 2);
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(YUVFrameTest, MouseWheelChangesTheLevelAndEmits)
{
    frame.slotSetRGB({85, 85, 85});
    turnWheel(120);
    EXPECT_FLOAT_EQ(frame.luma(), 86.2F);
    expectPicked(86.2F, 86.2F, 86.2F);
    EXPECT_EQ(frame.wheelImage(), wheelImageOf(*chromaPlaneOf(1), frame.luma()));
    turnWheel(-120);
    expectPicked(85, 85, 85);
    turnWheel(4);
    EXPECT_FLOAT_EQ(frame.luma(), 85);
}

TEST_F(YUVFrameTest, UnknownModeIsLoggedAndKeepsThePlane)
{
    expectWarning(QStringLiteral("Could not identify color space"));
    frame.setColorSpace(3);
    EXPECT_EQ(frame.plane(), *chromaPlaneOf(1));
    EXPECT_EQ(frame.colorSpace(), 3);
}

TEST_F(YUVFrameTest, ChangedModeTakesEffectAtTheNextRedraw)
{
    const auto key = frame.wheelImage().cacheKey();
    frame.setColorSpace(0);
    EXPECT_EQ(frame.plane(), *chromaPlaneOf(0));
    EXPECT_EQ(frame.wheelImage().cacheKey(), key);
    frame.slotSetLuma(85);
    EXPECT_EQ(frame.wheelImage(), wheelImageOf(*chromaPlaneOf(0), 85));
}

TEST_F(YUVFrameTest, DrawingWithNullPainterIsLogged)
{
    frame.drawWheel(nullptr);
    EXPECT_TRUE(log.contains(QStringLiteral("ERROR: Invalid painter")));
}

/// Independent drawing of a wheel: its corners are computed from the colours that they represent.
class DrawnWheel
{
public:
    DrawnWheel(const ChromaPlane &plane, float luma, const QWidget &wheel)
        : m_plane(plane), m_size(wheel.size()),
          m_image(wheelImageOf(plane, luma)
                      .scaled(m_size * wheel.devicePixelRatio(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_ARGB32_Premultiplied)),
          m_grey(luma <= 84 ? 255 : 0)
    {
        m_image.setDevicePixelRatio(wheel.devicePixelRatio());
        m_painter.begin(&m_image);
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    QImage image(double markerX, double markerY)
    {
        pen(1);
        hexagon(255);
        hexagon(510);
        pen(0.5);
        m_painter.drawLine(m_size.width() / 2, 0, m_size.width() / 2, m_size.height());
        m_painter.drawLine(0, m_size.height() / 2, m_size.width(), m_size.height() / 2);
        pen(2);
        const int x = static_cast<int>(m_size.width() * markerX);
        const int y = static_cast<int>(m_size.height() * markerY);
        m_painter.drawLine(x, y - 5, x, y + 5);
        m_painter.drawLine(x - 5, y, x + 5, y);
        m_painter.end();
        return m_image.convertToFormat(QImage::Format_RGB32);
    }

private:
    void pen(double width) { m_painter.setPen(QPen(QColor(m_grey, m_grey, m_grey), width)); }

    void hexagon(int full)
    {
        QPolygonF corners;
        const std::array<std::array<int, 3>, 6> colours{
            {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 1, 1}, {0, 0, 1}, {1, 0, 1}}};
        for (const auto &[r, g, b] : colours) {
            const int mean = full * (r + g + b) / 3;
            const double x =
                (full * b - mean - m_plane.uMin) * (double(m_size.width()) / (m_plane.uMax - m_plane.uMin));
            const double y =
                (m_plane.vMax - full * r + mean) * (double(m_size.height()) / (m_plane.vMax - m_plane.vMin));
            corners << QPointF(x, y);
        }
        m_painter.drawPolygon(corners);
    }

    ChromaPlane m_plane;
    QSize m_size;
    QImage m_image;
    int m_grey;
    QPainter m_painter;
};

TEST_F(YUVFrameTest, PaintsPlaneOutlinesAxesAndMarker)
{
    frame.resize(311, 203);
    for (int mode = 0; mode < 3; ++mode) {
        for (const float level : {30.0F, 84.0F, 84.5F, 200.0F}) {
            frame.setColorSpace(mode);
            frame.slotSetRGB({level + 40, level, level - 40});
            frame.slotSetLuma(level);
            const QImage shown = frame.grab().toImage().convertToFormat(QImage::Format_RGB32);
            const QImage expected = DrawnWheel(frame.plane(), level, frame).image(frame.markerX(), frame.markerY());
            EXPECT_EQ(shown, expected) << "mode " << mode << ", level " << level;
        }
    }
}

TEST_F(YUVFrameTest, LinesAreWhiteOnDarkLevelsAndBlackOnOthers)
{
    frame.slotSetRGB({84, 84, 84});
    const auto inTheMiddle = [this] {
        const QImage shown = frame.grab().toImage();
        return shown.pixelColor(shown.width() / 2, shown.height() / 2).red();
    };
    frame.slotSetLuma(84);
    EXPECT_EQ(inTheMiddle(), 255);
    frame.slotSetLuma(84.1F);
    EXPECT_EQ(inTheMiddle(), 0);
}

} // namespace
