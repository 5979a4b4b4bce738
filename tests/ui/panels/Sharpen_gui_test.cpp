// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/panels/Sharpen.h"

#include <QPushButton>

namespace
{

using namespace grisal::test;

class SharpenTest : public GuiTest
{
};

TEST_F(SharpenTest, ShowsThatSharpeningIsNotAvailable)
{
    const Sharpen panel;
    const auto buttons = panel.findChildren<QPushButton *>();
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(buttons[0]->text(), QStringLiteral("Sharpen Not Yet Available"));
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
}

TEST_F(SharpenTest, ButtonWithoutFunctionIsDisabled)
{
    const Sharpen panel;
    EXPECT_FALSE(child<QPushButton>(panel, "pushButton").isEnabled());
}

} // namespace
