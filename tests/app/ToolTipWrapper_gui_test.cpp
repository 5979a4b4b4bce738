// SPDX-License-Identifier: MIT
#include "app/ToolTipWrapper.h"
#include "tests/support/GuiTest.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace
{

using namespace grisal::test;

/// The label in which Qt shows tool tips; null if no tool tip is visible.
QWidget *shownTip()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// The widest tool tip that is allowed: 60 characters, and the frame of the tip.
int widestTip()
{
    return QFontMetrics(QToolTip::font()).averageCharWidth() * 60 + 30;
}

class ToolTipWrapperTest : public GuiTest
{
protected:
    ToolTipWrapperTest()
    {
        widget.resize(300, 200);
        widget.show();
        qApp->installEventFilter(&wrapper);
    }

    ~ToolTipWrapperTest() override { QToolTip::hideText(); }

    /// Shows a tool tip as if the mouse rested on the widget; returns its size.
    QSize showTip(const QString &text)
    {
        widget.setToolTip(text);
        QHelpEvent rest(QEvent::ToolTip, QPoint(10, 10), widget.mapToGlobal(QPoint(10, 10)));
        QApplication::sendEvent(&widget, &rest);
        const QWidget *tip = shownTip();
        return tip == nullptr ? QSize() : tip->size();
    }

    ToolTipWrapper wrapper;
    QWidget widget;
};

TEST_F(ToolTipWrapperTest, TipOfTwoHundredCharactersIsAboutSixtyWide)
{
    const QSize size = showTip(QStringLiteral("Click or drag ").repeated(15));
    EXPECT_LE(size.width(), widestTip());
    EXPECT_GE(size.width(), widestTip() / 2);
    EXPECT_GE(size.height(), 3 * QFontMetrics(QToolTip::font()).height());
}

TEST_F(ToolTipWrapperTest, RichTipIsWrapped)
{
    const QSize size = showTip(
        QStringLiteral("<div style=\"color:black;\">%1</div>").arg(QStringLiteral("Keeps the light ").repeated(12)));
    EXPECT_LE(size.width(), widestTip());
    EXPECT_GE(size.width(), widestTip() / 2);
}

TEST_F(ToolTipWrapperTest, ShortTipKeepsItsTextAndWidth)
{
    const QString text = QStringLiteral("There are no presets yet");
    EXPECT_EQ(wrappedToolTip(text), text);
    const QSize size = showTip(text);
    EXPECT_LE(size.width(), QFontMetrics(QToolTip::font()).horizontalAdvance(text) + 30);
    EXPECT_LT(size.height(), 3 * QFontMetrics(QToolTip::font()).height());
}

TEST_F(ToolTipWrapperTest, SpecialCharactersOfAPlainTextAreShown)
{
    const QString text = QStringLiteral("red < 5 & blue ").repeated(20);
    EXPECT_TRUE(wrappedToolTip(text).contains(QStringLiteral("red &lt; 5 &amp; blue")));
}

TEST_F(ToolTipWrapperTest, WidgetWithoutATipShowsNone)
{
    EXPECT_EQ(showTip(QString()), QSize());
}

} // namespace
