// SPDX-License-Identifier: MIT
#include "ui/accessible/Keys.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace
{

QKeyEvent pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return {QEvent::KeyPress, key, modifiers};
}

TEST(Keys, ArrowKeysGiveScreenDirections)
{
    EXPECT_EQ(arrowOf(pressed(Qt::Key_Left)), QPoint(-1, 0));
    EXPECT_EQ(arrowOf(pressed(Qt::Key_Right)), QPoint(1, 0));
    EXPECT_EQ(arrowOf(pressed(Qt::Key_Up)), QPoint(0, -1));
    EXPECT_EQ(arrowOf(pressed(Qt::Key_Down)), QPoint(0, 1));
    EXPECT_EQ(arrowOf(pressed(Qt::Key_Down, Qt::KeypadModifier)), QPoint(0, 1));
    EXPECT_TRUE(arrowOf(pressed(Qt::Key_Tab)).isNull());
}

TEST(Keys, ArrowKeysWithModifiersAreIgnored)
{
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        EXPECT_FALSE(isPlain(pressed(Qt::Key_Left, modifier)));
        EXPECT_TRUE(arrowOf(pressed(Qt::Key_Left, modifier)).isNull());
    }
    EXPECT_TRUE(isPlain(pressed(Qt::Key_Plus, Qt::ShiftModifier)));
    EXPECT_TRUE(isPlain(pressed(Qt::Key_Plus, Qt::KeypadModifier)));
}

TEST(Keys, PageKeyEqualsOneWheelNotch)
{
    EXPECT_EQ(wheelTurnOf(pressed(Qt::Key_PageUp)), 120);
    EXPECT_EQ(wheelTurnOf(pressed(Qt::Key_PageDown)), -120);
    EXPECT_EQ(wheelTurnOf(pressed(Qt::Key_Home)), 0);
}

} // namespace
