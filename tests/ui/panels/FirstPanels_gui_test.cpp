// SPDX-License-Identifier: MIT
// The panels that have only their reset button so far.
#include "tests/support/GuiTest.h"
#include "ui/panels/Sharpen.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace
{

using namespace grisal::test;

class FirstPanels : public GuiTest
{
protected:
    static void reset(const QWidget &panel)
    {
        auto &button = child<QPushButton>(panel, "buttonReset");
        EXPECT_EQ(button.text(), QStringLiteral("\t↻"));
        QTest::mouseClick(&button, Qt::LeftButton);
    }

    /// Expects one emission, of these numbers.
    static void expectOnce(const QSignalSpy &emitted, const std::vector<float> &numbers)
    {
        ASSERT_EQ(emitted.count(), 1);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            EXPECT_FLOAT_EQ(emitted[0][static_cast<int>(i)].toFloat(), numbers[i]) << i;
        }
    }
};

TEST_F(FirstPanels, ResetOfTheVignetteIsHalfOfEverything)
{
    const Vignette panel;
    const QSignalSpy emitted(&panel, &Vignette::signalVignette);
    reset(panel);
    expectOnce(emitted, {50, 50, 50, 50});
    EXPECT_FALSE(emitted[0][4].toBool());
}

TEST_F(FirstPanels, ResetOfTheSplitToneIsWarmLightsAndCoolShadows)
{
    const SplitTone panel;
    const QSignalSpy emitted(&panel, &SplitTone::signalSplit);
    reset(panel);
    expectOnce(emitted, {1, 190 / 255.0F, 156 / 255.0F, 54 / 255.0F, 110 / 255.0F, 148 / 255.0F, 198 / 255.0F});
}

TEST_F(FirstPanels, SharpenSaysThatItDoesNotExistYet)
{
    const Sharpen panel;
    const auto buttons = panel.findChildren<QPushButton *>();
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(buttons[0]->text(), QStringLiteral("Sharpen Not Yet Available"));
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("Form"));
}

} // namespace
