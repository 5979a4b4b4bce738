// SPDX-License-Identifier: MIT
// The curve and the markers of its points in the curve editor.
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"

#include <QImage>
#include <QTest>

namespace
{

using namespace grisal::test;

constexpr QSize frameSize(202, 102);
constexpr int markerWidth = 8; // of the white disc; the editor has no other white pixels

class CurveFrameMarkers : public GuiTest
{
protected:
    CurveFrameMarkers() { frame.resize(frameSize); }

    /// The part of `area` that is covered by white pixels, in logical pixels.
    QRectF whiteIn(const QRect &area)
    {
        const QImage shown = frame.grab().toImage();
        const int ratio = qRound(shown.devicePixelRatio());
        QRect white;
        for (int y = area.top() * ratio; y < (area.bottom() + 1) * ratio; ++y) {
            for (int x = area.left() * ratio; x < (area.right() + 1) * ratio; ++x) {
                if (shown.pixelColor(x, y) == QColor(Qt::white)) {
                    white |= QRect(x, y, 1, 1);
                }
            }
        }
        return {QPointF(white.topLeft()) / ratio, QSizeF(white.size()) / ratio};
    }

    CurveFrame frame;
};

TEST_F(CurveFrameMarkers, EndPointsInTheCornersAreWhole)
{
    constexpr int side = 20;
    const QRect whole(QPoint(0, 0), frameSize);
    frame.setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
    const QRectF middle = whiteIn({90, 40, side, side});
    const QRectF left = whiteIn({0, whole.height() - side, side, side});
    const QRectF right = whiteIn({whole.width() - side, 0, side, side});
    EXPECT_GE(middle.width(), markerWidth - 2);
    for (const QRectF &end : {left, right}) {
        EXPECT_NEAR(end.width(), middle.width(), 1);
        EXPECT_NEAR(end.height(), middle.height(), 1);
    }
}

TEST_F(CurveFrameMarkers, PointAboveTheFrameIsShownAtItsUpperEdge)
{
    frame.setPoints({0, 0.5F, 1}, {1, -3, 0});
    EXPECT_GE(whiteIn({90, 0, 20, 20}).height(), markerWidth - 2);
}

TEST_F(CurveFrameMarkers, PointAwayFromTheEdgesIsDrawnAtItsPosition)
{
    frame.setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
    const QPointF centre = whiteIn({90, 40, 20, 20}).center();
    EXPECT_NEAR(centre.x(), 100, 1);
    EXPECT_NEAR(centre.y(), 50, 1);
}

TEST_F(CurveFrameMarkers, SelectedPointIsOrange)
{
    frame.setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
    QTest::mouseClick(&frame, Qt::LeftButton, {}, frame.contentsRect().center());
    ASSERT_EQ(frame.selected(), 1);
    const QImage shown = frame.grab().toImage();
    const int ratio = qRound(shown.devicePixelRatio());
    EXPECT_EQ(shown.pixelColor(100 * ratio, 50 * ratio), QColor(214, 110, 0));
}

TEST_F(CurveFrameMarkers, CurveIsTwoPixelsWide)
{
    constexpr int darkestGround = 130; // on the lines of the grid
    frame.setPoints({0, 1}, {0.5F, 0.5F});
    frame.setHistogram(QVector<float>(256, 0.0F));
    const QImage shown = frame.grab().toImage();
    const int ratio = qRound(shown.devicePixelRatio());
    int covered = 0;
    int touched = 0;
    for (int y = ratio; y < shown.height() - ratio; ++y) {
        const QColor colour = shown.pixelColor(60 * ratio, y);
        covered += colour == QColor(20, 20, 20) ? 1 : 0;
        touched += colour.red() < darkestGround ? 1 : 0;
    }
    EXPECT_EQ(covered, 2 * ratio);
    EXPECT_EQ(touched, 2 * ratio);
}

} // namespace
