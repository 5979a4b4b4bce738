// SPDX-License-Identifier: MIT
// Keyboard use of the preview.
#include "tests/ui/preview/GLWidgetTest.h"

#include <QKeyEvent>

#include <algorithm>

namespace
{

using namespace grisal::test;

class GLWidgetKeys : public GLWidgetTest
{
protected:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&widget, key, modifiers);
    }

    /// The widget's area with a focus mark at its edge.
    BytePixels marked(BytePixels area) const
    {
        const int unit = static_cast<int>(ratio());
        for (int y = 0; y < area.height; ++y) {
            for (int x = 0; x < area.width; ++x) {
                const int depth = std::min({x, y, area.width - 1 - x, area.height - 1 - y}) / unit;
                for (int c = 0; c < 3 && depth < 4; ++c) {
                    area.at(x, y, c) = depth == 0 || depth == 3 ? 255 : 0;
                }
            }
        }
        return area;
    }

    void focusByKey()
    {
        widget.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
        widget.clearFocus();
        widget.setFocus(Qt::TabFocusReason);
    }
};

TEST_F(GLWidgetKeys, ArrowsMoveTheViewInTheirDirection)
{
    showPictureAtOneToOne();
    const QPointF middle = widget.offset();
    const double step = 20 * ratio();
    press(Qt::Key_Right);
    EXPECT_EQ(widget.offset(), middle - QPointF(step, 0));
    press(Qt::Key_Down);
    EXPECT_EQ(widget.offset(), middle + QPointF(-step, step));
    const int left = (pixelSize().width() - pictureWidth) / 2 - static_cast<int>(step);
    const int top = (pixelSize().height() - pictureHeight) / 2 - static_cast<int>(step);
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(widget.offset(), middle);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    widget.clearFocus();
    EXPECT_TRUE(screenShows(placed(redAsGrey(picture), left, top)));
}

TEST_F(GLWidgetKeys, PlusAndMinusZoom)
{
    show(100, 80);
    load(picture);
    widget.slotActualPixels();
    press(Qt::Key_Plus);
    EXPECT_NEAR(widget.scale(), 1.04, 1e-5);
    press(Qt::Key_Plus, Qt::ShiftModifier);
    EXPECT_NEAR(widget.scale(), 1.08, 1e-5);
    press(Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_NEAR(widget.scale(), 1.04, 1e-5);
}

TEST_F(GLWidgetKeys, HoldingTheSpaceBarShowsTheSource)
{
    showPictureAtOneToOne();
    focusByKey();
    QTest::keyPress(&widget, Qt::Key_Space);
    EXPECT_TRUE(screenShows(marked(centred(picture))));
    QKeyEvent repeatedRelease(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&widget, &repeatedRelease);
    EXPECT_TRUE(screenShows(marked(centred(picture))));
    QTest::keyRelease(&widget, Qt::Key_Space);
    EXPECT_TRUE(screenShows(marked(centred(redAsGrey(picture)))));
}

TEST_F(GLWidgetKeys, ComparisonEndsWhenTheFocusIsLost)
{
    showPictureAtOneToOne();
    focusByKey();
    QTest::keyPress(&widget, Qt::Key_Space);
    EXPECT_TRUE(screenShows(marked(centred(picture))));
    widget.clearFocus();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

TEST_F(GLWidgetKeys, OtherKeysAreIgnored)
{
    showPictureAtOneToOne();
    const QPointF middle = widget.offset();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Plus, Qt::Key_Minus}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
        QCoreApplication::sendEvent(&widget, &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
    EXPECT_EQ(widget.offset(), middle);
    EXPECT_FLOAT_EQ(widget.scale(), 1);
}

TEST_F(GLWidgetKeys, KeysWithoutAnImageDoNothing)
{
    show();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Space}) {
        press(key);
    }
    EXPECT_EQ(widget.scale(), 1);
    EXPECT_EQ(widget.offset(), QPointF());
}

TEST_F(GLWidgetKeys, FocusIsMarkedUnlessSetByTheMouse)
{
    showPictureAtOneToOne();
    focusByKey();
    EXPECT_TRUE(screenShows(marked(centred(redAsGrey(picture)))));
    widget.clearFocus();
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_TRUE(widget.hasFocus());
    EXPECT_TRUE(screenShows(centred(redAsGrey(picture))));
}

} // namespace
