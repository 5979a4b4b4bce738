// SPDX-License-Identifier: MIT
#include "app/About.h"
#include "app/Appearance.h"
#include "tests/support/GuiTest.h"

#include <QApplication>
#include <QHelpEvent>
#include <QIcon>
#include <QMessageBox>
#include <QToolTip>

namespace
{

using namespace grisal::test;

class AppearanceTest : public GuiTest
{
protected:
    ~AppearanceTest() override
    {
        QToolTip::hideText();
        QApplication::setWindowIcon({});
    }
};

TEST_F(AppearanceTest, DialogsWithoutAParentHaveTheIconOfTheProgram)
{
    EXPECT_TRUE(About().windowIcon().isNull());
    const Appearance appearance;
    EXPECT_EQ(About().windowIcon().availableSizes(), QList<QSize>{QSize(256, 256)});
    EXPECT_FALSE(QMessageBox().windowIcon().isNull());
}

TEST_F(AppearanceTest, ToolTipsOfAllWidgetsAreWrapped)
{
    const Appearance appearance;
    QWidget widget;
    widget.show();
    widget.setToolTip(QStringLiteral("Click or drag ").repeated(15));
    QHelpEvent rest(QEvent::ToolTip, QPoint(1, 1), widget.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&widget, &rest);
    EXPECT_EQ(QToolTip::text(), wrappedToolTip(widget.toolTip()));
    EXPECT_NE(QToolTip::text(), widget.toolTip());
}

} // namespace
