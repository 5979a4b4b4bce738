// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/PanelFrame.h"

#include <QImage>

namespace
{

using namespace grisal::test;

/// Whether a pixel near a position on an edge is darker than the window; `across` is the direction across the edge.
bool hasLine(const QImage &shown, QPoint edge, QPoint across)
{
    const QPoint centre = ((QPointF(edge) + QPointF(0.5, 0.5)) * shown.devicePixelRatio()).toPoint();
    for (int i = -2; i <= 2; ++i) {
        if (shown.pixelColor(centre + i * across).lightness() < 200) {
            return true;
        }
    }
    return false;
}

class PanelFrameTest : public GuiTest
{
protected:
    PanelFrameTest()
    {
        window.resize(100, 100);
        window.setPalette(QPalette(QColor(239, 239, 239)));
        frame.setFrameShape(QFrame::StyledPanel);
        frame.setContentsMargins(0, 0, 0, 0);
        window.show();
    }

    void expectClosedAt(const QRect &place)
    {
        frame.setGeometry(place);
        const QImage shown = window.grab().toImage();
        const QPoint middle = place.center();
        EXPECT_TRUE(hasLine(shown, {place.left(), middle.y()}, {1, 0})) << "left of x " << place.x();
        EXPECT_TRUE(hasLine(shown, {place.right(), middle.y()}, {1, 0})) << "right of width " << place.width();
        EXPECT_TRUE(hasLine(shown, {middle.x(), place.top()}, {0, 1})) << "top of y " << place.y();
        EXPECT_TRUE(hasLine(shown, {middle.x(), place.bottom()}, {0, 1})) << "bottom of height " << place.height();
    }

    QWidget window;
    PanelFrame frame{&window};
};

// At a fractional scale, some of the edges lie between two device pixels.
TEST_F(PanelFrameTest, IsClosedAtEachPositionAndSize)
{
    for (int start = 10; start < 14; ++start) {
        for (int side = 50; side < 54; ++side) {
            expectClosedAt({start, start, side, side});
        }
    }
}

} // namespace
