// SPDX-License-Identifier: MIT
#include "app/FilterToolBar.h"
#include "app/Translation.h"
#include "tests/app/WindowTest.h"

#include <QAction>
#include <QImage>
#include <QLocale>
#include <QPalette>

#include <array>
#include <set>

namespace
{

using namespace grisal::test;
using grisal::ui::FilterToolBar;

constexpr std::array<const char *, 6> actionNames{"actionMixer",    "actionCurves", "actionSharpen",
                                                  "actionVignette", "actionGrain",  "actionSplitTone"};

QPalette paletteOf(const QColor &grey)
{
    QPalette palette(grey);
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    return palette;
}

QPalette lightPalette()
{
    return paletteOf(QColor(239, 239, 239));
}

QPalette darkPalette()
{
    return paletteOf(QColor(45, 45, 45));
}

/// The colour in the middle of the lower edge of a button, where the line of the visible panel is.
QColor lowerEdgeOf(QWidget &bar, const QWidget &button)
{
    const QRect area = button.geometry();
    return bar.grab().toImage().pixelColor(area.center().x(), area.bottom() - 1);
}

/// The colours at the left edge of a button and inside it, beside the icon.
struct ButtonColours {
    QColor edge;
    QColor fill;
};

ButtonColours coloursOf(QWidget &bar, const QWidget &button)
{
    const QImage shown = bar.grab().toImage();
    const QRect area = button.geometry();
    return {shown.pixelColor(area.left(), area.center().y()), shown.pixelColor(area.left() + 5, area.center().y())};
}

/// How much bluer than red a colour is, like the highlight colours of this test.
int blueOf(const QColor &colour)
{
    return colour.blue() - colour.red();
}

class FilterToolBarTest : public GuiTest
{
protected:
    FilterToolBarTest()
    {
        curves.setCheckable(true);
        bar.setOrientation(Qt::Vertical);
        bar.addButtons(&mixer, {&curves});
        bar.resize(bar.sizeHint());
        bar.show();
    }

    QWidget &buttonOf(QAction &action) const { return *bar.widgetForAction(&action); }

    QAction mixer{QStringLiteral("1. Mixer")};
    QAction curves{QStringLiteral("2. Curves")};
    FilterToolBar bar{nullptr};
};

TEST_F(FilterToolBarTest, CheckedButtonIsFilledOnLightAndDarkPalettes)
{
    for (const QPalette &palette : {lightPalette(), darkPalette()}) {
        bar.setPalette(palette);
        const QColor highlight = palette.color(QPalette::Highlight);
        curves.setChecked(false);
        EXPECT_NE(coloursOf(bar, buttonOf(curves)).edge, highlight);
        EXPECT_LT(blueOf(coloursOf(bar, buttonOf(curves)).fill), 15);
        curves.setChecked(true);
        EXPECT_EQ(coloursOf(bar, buttonOf(curves)).edge, highlight);
        EXPECT_GT(blueOf(coloursOf(bar, buttonOf(curves)).fill), 30);
    }
}

TEST_F(FilterToolBarTest, ButtonOfTheVisiblePanelHasALineInTheColourOfTheText)
{
    for (const QPalette &palette : {lightPalette(), darkPalette()}) {
        bar.setPalette(palette);
        const QColor text = palette.color(QPalette::ButtonText);
        bar.markShown(&curves);
        EXPECT_EQ(lowerEdgeOf(bar, buttonOf(curves)), text);
        EXPECT_NE(lowerEdgeOf(bar, buttonOf(mixer)), text);
        bar.markShown(&mixer);
        EXPECT_NE(lowerEdgeOf(bar, buttonOf(curves)), text);
        EXPECT_EQ(lowerEdgeOf(bar, buttonOf(mixer)), text);
    }
}

TEST_F(FilterToolBarTest, LineDoesNotDependOnTheCheckedState)
{
    bar.markShown(&mixer);
    curves.setChecked(true);
    EXPECT_NE(lowerEdgeOf(bar, buttonOf(curves)), bar.palette().color(QPalette::ButtonText));
    bar.markShown(&curves);
    EXPECT_EQ(lowerEdgeOf(bar, buttonOf(curves)), bar.palette().color(QPalette::ButtonText));
}

class FilterToolBarInWindow : public WindowTest
{
protected:
    FilterToolBar &bar() { return *dynamic_cast<FilterToolBar *>(window.findChild<QToolBar *>()); }

    bool isMarked(const char *name)
    {
        return lowerEdgeOf(bar(), *bar().widgetForAction(&action(name))) == bar().palette().color(QPalette::ButtonText);
    }
};

TEST_F(FilterToolBarInWindow, ButtonsHaveTheSameWidthInEachLanguage)
{
    for (const QLocale::Language language : {QLocale::English, QLocale::German, QLocale::French}) {
        const Translation translation{QLocale(language)};
        grisal::ui::MainWindow translated;
        translated.show();
        const auto &toolBar = *translated.findChild<QToolBar *>();
        std::set<int> widths;
        for (const char *name : actionNames) {
            widths.insert(toolBar.widgetForAction(&child<QAction>(translated, name))->width());
        }
        EXPECT_EQ(widths.size(), 1U) << QLocale::languageToString(language).toStdString();
    }
}

TEST_F(FilterToolBarInWindow, MarksTheVisiblePanelWhileFiltersStayOn)
{
    start();
    EXPECT_TRUE(isMarked("actionMixer"));
    for (const char *name : {"actionCurves", "actionSharpen", "actionVignette", "actionGrain", "actionSplitTone"}) {
        trigger(window, name);
        EXPECT_TRUE(isMarked(name)) << name;
        EXPECT_FALSE(isMarked("actionMixer")) << name;
    }
    trigger(window, "actionSplitTone");
    EXPECT_TRUE(isMarked("actionMixer"));
    EXPECT_FALSE(isMarked("actionSplitTone"));
    EXPECT_TRUE(action("actionGrain").isChecked());
    EXPECT_FALSE(isMarked("actionGrain"));
}

TEST_F(FilterToolBarInWindow, MarksTheMixerAfterAnImageIsOpened)
{
    start();
    trigger(window, "actionVignette");
    window.slotResetActions();
    EXPECT_TRUE(isMarked("actionMixer"));
    EXPECT_FALSE(isMarked("actionVignette"));
}

} // namespace
