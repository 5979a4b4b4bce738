// SPDX-License-Identifier: MIT
#include "ui/accessible/FocusMark.h"

#include "tests/support/GuiTest.h"

#include <QMenu>
#include <QPainter>
#include <QTest>
#include <QVBoxLayout>

namespace
{

using namespace grisal::test;

class Marked : public QWidget
{
public:
    Marked()
    {
        setFocusPolicy(Qt::StrongFocus);
        setFixedSize(40, 30);
    }

    FocusMark mark{this};

protected:
    void keyPressEvent(QKeyEvent *) override { mark.useKey(); }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::red);
        mark.draw(painter, rect());
    }
};

class FocusMarkTest : public GuiTest
{
protected:
    FocusMarkTest()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(first);
        layout->addWidget(second);
    }

    void SetUp() override
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    Marked *first = new Marked;
    Marked *second = new Marked;
};

TEST_F(FocusMarkTest, FirstFocusOfAWindowIsNotMarked)
{
    EXPECT_TRUE(first->hasFocus());
    EXPECT_FALSE(first->mark.isSeen());
}

TEST_F(FocusMarkTest, TabKeyShowsTheMark)
{
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_TRUE(second->mark.isSeen());
    EXPECT_FALSE(first->mark.isSeen());
    QTest::keyClick(second, Qt::Key_Backtab);
    EXPECT_TRUE(first->mark.isSeen());
    EXPECT_FALSE(second->mark.isSeen());
}

TEST_F(FocusMarkTest, MouseShowsNoMarkUntilAKeyIsPressed)
{
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_TRUE(second->hasFocus());
    EXPECT_FALSE(second->mark.isSeen());
    QTest::keyClick(second, Qt::Key_X);
    EXPECT_TRUE(second->mark.isSeen());
    QTest::mouseClick(first, Qt::LeftButton);
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_FALSE(second->mark.isSeen());
}

TEST_F(FocusMarkTest, ReturningFocusHasItsFormerMark)
{
    QTest::keyClick(first, Qt::Key_Tab);
    second->clearFocus();
    EXPECT_FALSE(second->mark.isSeen());
    second->setFocus(Qt::PopupFocusReason);
    EXPECT_TRUE(second->mark.isSeen());
    QTest::mouseClick(first, Qt::LeftButton);
    first->setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(first->mark.isSeen());
}

TEST_F(FocusMarkTest, IsALineBetweenTwoLinesAtTheEdge)
{
    QTest::keyClick(first, Qt::Key_Tab);
    const QImage seen = second->grab().toImage();
    const auto pixel = [&](int x, int y) {
        const qreal density = second->devicePixelRatioF();
        return seen.pixelColor(static_cast<int>(x * density), static_cast<int>(y * density));
    };
    for (int i = 4; i < 26; ++i) {
        for (const QList<QPoint> &line : {QList<QPoint>{{0, i}, {1, i}, {2, i}, {3, i}, {4, i}},
                                          QList<QPoint>{{39, i}, {38, i}, {37, i}, {36, i}, {35, i}},
                                          QList<QPoint>{{i, 0}, {i, 1}, {i, 2}, {i, 3}, {i, 4}},
                                          QList<QPoint>{{i, 29}, {i, 28}, {i, 27}, {i, 26}, {i, 25}}}) {
            const QList<QColor> expected{Qt::white, Qt::black, Qt::black, Qt::white, Qt::red};
            for (int depth = i == 4 || i == 25 ? 3 : 4; depth >= 0; --depth) {
                EXPECT_EQ(pixel(line[depth].x(), line[depth].y()), expected[depth]) << i << ", " << depth;
            }
        }
    }
    QTest::keyClick(second, Qt::Key_Backtab);
    EXPECT_EQ(second->grab().toImage().pixelColor(1, 15), QColor(Qt::red));
}

TEST(FocusMarkLines, ScaleWithTheScreenDensity)
{
    const auto lines = focusMarkLines(QRect(0, 0, 100, 80), 2);
    EXPECT_EQ(lines.front().place, QRect(0, 0, 100, 8));
    EXPECT_FALSE(lines.front().dark);
    EXPECT_EQ(lines.back().place, QRect(94, 2, 4, 76));
    EXPECT_TRUE(lines.back().dark);
}

} // namespace
