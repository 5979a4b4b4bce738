// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/CurveFrame.h"
#include "ui/frames/CurveFrameEventFilter.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

namespace
{

using namespace grisal::test;

class CurveFrameEventFilterTest : public GuiTest
{
protected:
    CurveFrameEventFilterTest()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(frame);
        layout->addWidget(edit);
        frame->setMinimumSize(100, 100);
        frame->setPoints({0, 0.5F, 1}, {1, 0.5F, 0});
        edit->setText(QStringLiteral("abc"));
        QCoreApplication::instance()->installEventFilter(&filter);
    }

    void show()
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        focusText();
    }

    void focusText()
    {
        edit->setFocus();
        edit->deselect();
        edit->setCursorPosition(0);
    }

    void selectMiddle() { QTest::mouseClick(frame, Qt::LeftButton, {}, frame->rect().center()); }

    /// Sends a key to the window, as the desktop does.
    void key(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

    QWidget window;
    CurveFrame *frame = new CurveFrame;
    QLineEdit *edit = new QLineEdit;
    CurveFrameEventFilter filter{frame};
};

TEST_F(CurveFrameEventFilterTest, DeleteDeletesThePointWhereverTheFocusIs)
{
    show();
    selectMiddle();
    focusText();
    key(Qt::Key_Delete);
    EXPECT_EQ(frame->points().count(), 2);
    EXPECT_EQ(edit->text(), QStringLiteral("abc"));
}

TEST_F(CurveFrameEventFilterTest, DeleteEditsTextIfNoPointIsSelected)
{
    show();
    key(Qt::Key_Delete);
    EXPECT_EQ(frame->points().count(), 3);
    EXPECT_EQ(edit->text(), QStringLiteral("bc"));
}

TEST_F(CurveFrameEventFilterTest, DeleteEditsTextIfTheCurveIsHidden)
{
    show();
    selectMiddle();
    frame->hide();
    focusText();
    key(Qt::Key_Delete);
    EXPECT_EQ(frame->points().count(), 3);
    EXPECT_EQ(edit->text(), QStringLiteral("bc"));
}

TEST_F(CurveFrameEventFilterTest, OtherKeysAreNotIntercepted)
{
    show();
    selectMiddle();
    focusText();
    key(Qt::Key_X);
    EXPECT_EQ(frame->points().count(), 3);
    EXPECT_EQ(edit->text(), QStringLiteral("xabc"));
}

TEST_F(CurveFrameEventFilterTest, DeleteEditsTextAfterTheCurveIsDestroyed)
{
    show();
    selectMiddle();
    delete frame;
    focusText();
    key(Qt::Key_Delete);
    EXPECT_EQ(edit->text(), QStringLiteral("bc"));
}

} // namespace
