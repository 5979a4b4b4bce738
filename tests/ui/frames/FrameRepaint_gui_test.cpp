// SPDX-License-Identifier: MIT
// Frames paint themselves again after each change of what they show.
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/VFrame.h"
#include "ui/frames/YUVFrame.h"

#include <QEvent>
#include <QTest>

#include <functional>

namespace
{

using namespace grisal::test;

/// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class FrameRepaint : public GuiTest
{
protected:
    static void show(QWidget &frame)
    {
        frame.resize(200, 200);
        frame.show();
        // A click would move the focus, whose mark is painted, too.
        frame.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
        QTest::qWait(50);
    }

    static bool follows(QWidget &frame, const std::function<void()> &change)
    {
        const PaintCounter counter(frame);
        change();
        return QTest::qWaitFor([&] { return counter.paints > 0; }, 2'000);
    }
};

TEST_F(FrameRepaint, FollowsChangesOfACurve)
{
    CurveFrame frame;
    show(frame);
    EXPECT_TRUE(follows(frame, [&] { frame.setHistogram(QVector<float>(256, 0.5F)); }));
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetInterpolation(CurveFrame::Linear); }));
    EXPECT_TRUE(follows(frame, [&] { frame.setPoints({0, 0.5F, 1}, {0, 0.5F, 1}); }));
    EXPECT_TRUE(follows(frame, [&] { QTest::mouseClick(&frame, Qt::LeftButton, {}, {100, 100}); }));
    ASSERT_EQ(frame.selected(), 1);
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetActiveTo(0.4F, 0.6F); }));
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetInactive(); }));
}

TEST_F(FrameRepaint, FollowsChangesOfAVignette)
{
    VFrame frame;
    show(frame);
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetX(0.3F); }));
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetY(0.3F); }));
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetRadius(0.3F); }));
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetStrength(0.3F); }));
    EXPECT_TRUE(follows(frame, [&] { QTest::mouseClick(&frame, Qt::LeftButton, {}, {50, 50}); }));
    EXPECT_TRUE(follows(frame, [&] { frame.setImageSize({300, 200}); }));
}

TEST_F(FrameRepaint, FollowsChangesOfATint)
{
    YUVFrame frame;
    show(frame);
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetRGB({100, 50, 0}); }));
    EXPECT_TRUE(follows(frame, [&] { frame.slotSetLuma(100); }));
    EXPECT_TRUE(follows(frame, [&] { QTest::mouseClick(&frame, Qt::LeftButton, {}, {50, 50}); }));
}

} // namespace
