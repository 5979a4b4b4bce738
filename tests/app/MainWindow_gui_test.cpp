// SPDX-License-Identifier: MIT
// The parts of the window: actions, menus, tool bar, panels.
#include "tests/app/WindowTest.h"

#include <QFrame>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>

#include <array>
#include <string>
#include <vector>

namespace
{

using namespace grisal::test;

struct ActionRow {
    const char *name;
    const char *text;
    const char *statusTip;
    const char *shortcut;
    bool checkable;
    const char *icon;
};

constexpr std::array<ActionRow, 19> actionTable{{
    {"actionMixer", "1. Mixer", "Channel Mixer", "Ctrl+1", false, ":/Icons/Icons/mixer.png"},
    {"actionCurves", "2. Curves", "Edit mapping function", "Ctrl+2", true, ":/Icons/Icons/curves.png"},
    {"actionSharpen", "3. Sharpen", "Accentuate Details", "Ctrl+3", true, ":/Icons/Icons/sharpen.png"},
    {"actionVignette", "4. Vignette", "Darken Borders", "Ctrl+4", true, ":/Icons/Icons/vignette.png"},
    {"actionGrain", "5. Film Grain", "Simulate High ISO Film Grain", "Ctrl+5", true, ":/Icons/Icons/grain.png"},
    {"actionSplitTone", "6. Split Tone", "Apply Color Tones", "Ctrl+6", true, ":/Icons/Icons/split.png"},
    {"actionOpen", "Open", "", "Ctrl+O", false, ":/Actions/Icons/Actions/load.png"},
    {"actionSave", "Save", "", "Ctrl+S", false, ":/Actions/Icons/Actions/save.png"},
    {"actionSave_As", "Save As", "", "Ctrl+Shift+S", false, ":/Actions/Icons/Actions/save_as.png"},
    {"actionQuit", "Quit", "", "Ctrl+Q", false, ":/Actions/Icons/Actions/exit.png"},
    {"actionPreferences", "Preferences", "", "", false, ":/Actions/Icons/Actions/prefs.png"},
    {"actionAbout", "About", "", "", false, ":/Actions/Icons/Actions/info.png"},
    {"actionWebsite", "Website", "", "", false, ":/Actions/Icons/Actions/web.png"},
    {"actionHelp", "Help", "", "", false, ":/Actions/Icons/Actions/help.png"},
    {"actionZoomIn", "Zoom In", "", "Ctrl++", false, ""},
    {"actionZoomOut", "Zoom Out", "", "Ctrl+-", false, ""},
    {"actionFitOnWidth", "Fit on Width", "", "Ctrl+0", false, ""},
    {"actionFitOnHeight", "Fit on Height", "", "Ctrl+Shift+0", false, ""},
    {"actionActualPixels", "Actual Pixels", "Zoom to 1:1", "Ctrl+Alt+0", false, ""},
}};

class MainWindowTest : public WindowTest
{
protected:
    QToolBar &toolBar() const { return *window.findChild<QToolBar *>(); }

    /// Object names of a menu's items, "-" for a separator, joined by blanks.
    std::string items(const char *menu) const
    {
        QStringList names;
        for (const QAction *item : child<QMenu>(window, menu).actions()) {
            const QString name = item->menu() != nullptr ? item->menu()->objectName() : item->objectName();
            names << (item->isSeparator() ? QStringLiteral("-") : name);
        }
        return names.join(QLatin1Char(' ')).toStdString();
    }
};

TEST_F(MainWindowTest, ActionsHaveTextsTipsAndShortcuts)
{
    for (const ActionRow &row : actionTable) {
        const QAction &found = action(row.name);
        EXPECT_EQ(found.text(), QString::fromLatin1(row.text)) << row.name;
        EXPECT_EQ(found.statusTip(), QString::fromLatin1(row.statusTip)) << row.name;
        EXPECT_EQ(found.shortcut(), QKeySequence(QString::fromLatin1(row.shortcut))) << row.name;
        EXPECT_EQ(found.isCheckable(), row.checkable) << row.name;
        EXPECT_FALSE(found.isChecked()) << row.name;
    }
}

// Each icon is loaded from its own file, has a second one for high-DPI screens and differs from all others.
TEST_F(MainWindowTest, ActionsHaveDistinctIcons)
{
    constexpr int side = 32;
    std::vector<QImage> seen;
    for (const ActionRow &row : actionTable) {
        const QIcon icon = action(row.name).icon();
        const QString path = QString::fromLatin1(row.icon);
        EXPECT_EQ(icon.isNull(), path.isEmpty()) << row.name;
        if (path.isEmpty()) {
            continue;
        }
        EXPECT_EQ(QImage(path).size(), QSize(side, side)) << row.name;
        const QImage plain = icon.pixmap(QSize(side, side), 1).toImage();
        EXPECT_EQ(plain, QImage(path).convertToFormat(plain.format())) << row.name;
        QString highDpi = path;
        EXPECT_EQ(QImage(highDpi.replace(QStringLiteral(".png"), QStringLiteral("@2x.png"))).size(),
                  QSize(2 * side, 2 * side))
            << row.name;
        for (const QImage &other : seen) {
            EXPECT_NE(plain, other) << row.name;
        }
        seen.push_back(plain);
    }
}

TEST_F(MainWindowTest, WindowHasTheIconOfTheProgram)
{
    const QImage icon(QStringLiteral(":/Icons/Icons/grisal.png"));
    EXPECT_EQ(icon.size(), QSize(256, 256));
    const QImage shown = window.windowIcon().pixmap(QSize(256, 256), 1).toImage();
    EXPECT_EQ(shown, icon.convertToFormat(shown.format()));
}

TEST_F(MainWindowTest, FormHasTitleAndSize)
{
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Lumio Grisal (Alpha)"));
    EXPECT_EQ(window.size(), QSize(663, 572));
    EXPECT_EQ(window.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(MainWindowTest, PreviewIsLeftOfThePanels)
{
    const auto &splitter = child<QSplitter>(window, "splitter");
    EXPECT_EQ(splitter.orientation(), Qt::Horizontal);
    ASSERT_EQ(splitter.count(), 2);
    EXPECT_EQ(splitter.widget(0), &preview());
    EXPECT_EQ(preview().minimumWidth(), 300);
    const auto &container = child<QFrame>(window, "container");
    EXPECT_EQ(splitter.widget(1), &container);
    EXPECT_EQ(container.frameShape(), QFrame::StyledPanel);
    EXPECT_EQ(container.minimumWidth(), 300);
    EXPECT_EQ(container.maximumWidth(), 400);
    EXPECT_EQ(container.layout()->contentsMargins(), QMargins(0, 0, 4, 0));
}

TEST_F(MainWindowTest, MenusAreInFixedOrder)
{
    QStringList titles;
    for (const QAction *item : child<QMenuBar>(window, "menubar").actions()) {
        titles << item->text();
    }
    EXPECT_EQ(titles.join(QLatin1Char(' ')).toStdString(), "File Edit View Filter Help");
    EXPECT_EQ(items("menuFile"), "actionOpen menuRecent - actionSave actionSave_As - actionQuit");
    EXPECT_EQ(items("menuEdit"), "actionPreferences");
    EXPECT_EQ(items("menuView"), "actionZoomIn actionZoomOut - actionFitOnWidth actionFitOnHeight - "
                                 "actionActualPixels");
    EXPECT_EQ(items("menuFilter"), "actionMixer - actionCurves actionSharpen actionVignette actionGrain "
                                   "actionSplitTone");
    EXPECT_EQ(items("menuHelp"), "actionAbout actionWebsite - actionHelp");
    EXPECT_EQ(child<QMenu>(window, "menuRecent").title(), QStringLiteral("Recent"));
}

TEST_F(MainWindowTest, ToolBarIsOnTheLeftAndNotMovable)
{
    EXPECT_EQ(window.toolBarArea(&toolBar()), Qt::LeftToolBarArea);
    EXPECT_EQ(toolBar().allowedAreas(), Qt::LeftToolBarArea);
    EXPECT_FALSE(toolBar().isMovable());
    EXPECT_FALSE(toolBar().isFloatable());
    EXPECT_EQ(toolBar().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

TEST_F(MainWindowTest, ToolBarIsInFixedOrder)
{
    QStringList found;
    for (QAction *item : toolBar().actions()) {
        const QWidget *widget = toolBar().widgetForAction(item);
        if (item->isSeparator()) {
            found << QStringLiteral("-");
        } else if (!item->objectName().isEmpty()) {
            found << item->objectName();
        } else {
            const bool fixed = widget->minimumSize() == QSize(20, 20) && widget->maximumSize() == QSize(20, 20);
            found << (fixed ? QStringLiteral("gap") : QStringLiteral("stretch"));
        }
    }
    EXPECT_EQ(found.join(QLatin1Char(' ')).toStdString(),
              "gap actionMixer gap - actionCurves - actionSharpen - actionVignette - actionGrain - actionSplitTone - "
              "stretch");
    const QSizePolicy stretch = toolBar().widgetForAction(toolBar().actions().last())->sizePolicy();
    EXPECT_EQ(stretch.horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(stretch.verticalPolicy(), QSizePolicy::Expanding);
}

TEST_F(MainWindowTest, PanelsAreInFixedOrderAndTheMixerIsShown)
{
    QStringList names;
    for (int i = 0; i < panels().count(); ++i) {
        names << QString::fromLatin1(panels().widget(i)->metaObject()->className());
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')).toStdString(), "Mixer Vignette SplitTone Grain Sharpen Curves");
    EXPECT_EQ(shownPanel(), "Mixer");
}

TEST_F(MainWindowTest, SlotsHaveFixedNamesAndOrder)
{
    EXPECT_EQ(methodsOf(grisal::ui::MainWindow::staticMetaObject, '\n'), "signalFinished()\n"
                                                                         "on_actionMixer_triggered()\n"
                                                                         "on_actionVignette_triggered()\n"
                                                                         "on_actionSplitTone_triggered()\n"
                                                                         "on_actionGrain_triggered()\n"
                                                                         "slotFinalRendering()\n"
                                                                         "slotAbout()\n"
                                                                         "slotResetFilters()\n"
                                                                         "slotResetActions()\n"
                                                                         "openImage(QString)\n"
                                                                         "on_actionQuit_triggered()\n"
                                                                         "on_actionOpen_triggered()\n"
                                                                         "on_actionSave_triggered()\n"
                                                                         "on_actionSave_As_triggered()\n"
                                                                         "on_actionSharpen_triggered()\n"
                                                                         "on_actionCurves_triggered()\n"
                                                                         "on_actionWebsite_triggered()\n"
                                                                         "on_actionAbout_triggered()\n"
                                                                         "on_actionZoomIn_triggered()\n"
                                                                         "on_actionZoomOut_triggered()\n"
                                                                         "on_actionFitOnWidth_triggered()\n"
                                                                         "on_actionFitOnHeight_triggered()\n"
                                                                         "on_actionActualPixels_triggered()");
}

TEST_F(MainWindowTest, StatusTipsAreShownInTheStatusBar)
{
    start();
    auto *button = qobject_cast<QToolButton *>(toolBar().widgetForAction(&action("actionVignette")));
    ASSERT_NE(button, nullptr);
    QTest::mouseMove(button);
    EXPECT_TRUE(QTest::qWaitFor([this] { return status() == "Darken Borders"; })) << status();
}

} // namespace
