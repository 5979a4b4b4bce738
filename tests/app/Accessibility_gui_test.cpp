// SPDX-License-Identifier: MIT
// Use of the window with a screen reader and with the keyboard alone.
#include "tests/app/WindowTest.h"

#include "app/About.h"
#include "ui/accessible/AccessibleControl.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QSet>
#include <QSlider>
#include <QTabWidget>
#include <QToolBar>

#include <functional>

namespace
{

using namespace grisal::test;

const QList<const char *> panelActions{"actionMixer",    "actionCurves", "actionSharpen",
                                       "actionVignette", "actionGrain",  "actionSplitTone"};

bool isOurs(const QAccessibleInterface &element)
{
    return dynamic_cast<const AccessibleControl *>(element.object()) != nullptr;
}

/// Whether the element is interactive or a widget of this program and therefore needs a name.
bool needsName(const QAccessibleInterface &element)
{
    switch (element.role()) {
    case QAccessible::Button:
    case QAccessible::ButtonDropDown:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::Slider:
    case QAccessible::Dial:
    case QAccessible::SpinBox:
    case QAccessible::ScrollBar:
    case QAccessible::PageTab:
    case QAccessible::MenuItem:
    case QAccessible::ToolBar:
    case QAccessible::StaticText:
        return true;
    default:
        return isOurs(element) || element.state().focusable;
    }
}

void visitVisible(QAccessibleInterface &element, const std::function<void(QAccessibleInterface &)> &visit)
{
    if (element.state().invisible) {
        return;
    }
    visit(element);
    for (int i = 0; i < element.childCount(); ++i) {
        if (QAccessibleInterface *child = element.child(i)) {
            visitVisible(*child, visit);
        }
    }
}

std::string describe(const QAccessibleInterface &element)
{
    const QObject *object = element.object();
    return QStringLiteral("role %1, %2 %3")
        .arg(element.role())
        .arg(QLatin1String(object != nullptr ? object->metaObject()->className() : "no object"))
        .arg(object != nullptr ? object->objectName() : QString())
        .toStdString();
}

/// Expects that all visible elements that need a name have one, which is unique among controls of the same role.
/// Returns their number.
int expectNames(QObject &root)
{
    int count = 0;
    QSet<QString> seen;
    visitVisible(*QAccessible::queryAccessibleInterface(&root), [&](QAccessibleInterface &element) {
        // A separator is a menu item without text.
        const bool separator = element.role() == QAccessible::Separator;
        if (separator || !needsName(element)) {
            return;
        }
        ++count;
        const QString name = element.text(QAccessible::Name);
        EXPECT_FALSE(name.trimmed().isEmpty()) << describe(element);
        EXPECT_FALSE(name.contains(QLatin1Char('<'))) << name.toStdString();
        if (element.state().focusable) {
            const QString key = QString::number(element.role()) + name;
            EXPECT_FALSE(seen.contains(key)) << name.toStdString() << ": " << describe(element);
            seen << key;
        }
    });
    return count;
}

std::string sortedNames(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets) {
        names << widget->objectName();
    }
    names.sort();
    return names.join(QLatin1Char(' ')).toStdString();
}

QString descriptionOf(QObject &control)
{
    return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Description);
}

class Accessibility : public WindowTest
{
protected:
    /// Shows the panel of an action.
    void showPanel(const char *name)
    {
        trigger(window, "actionMixer");
        if (QByteArray(name) != "actionMixer") {
            trigger(window, name);
        }
    }

    /// The controls of the shown panel, and the preview, that can be reached by Tab. In a group of radio buttons this
    /// is the checked one; the arrow keys move to the others.
    QList<QWidget *> expectedStops()
    {
        QList<QWidget *> stops{&preview()};
        for (QWidget *control : panels().currentWidget()->findChildren<QWidget *>()) {
            const auto *radio = qobject_cast<QRadioButton *>(control);
            const bool isControl = qobject_cast<QAbstractButton *>(control) != nullptr ||
                                   qobject_cast<QAbstractSlider *>(control) != nullptr ||
                                   qobject_cast<QAbstractSpinBox *>(control) != nullptr ||
                                   qobject_cast<QComboBox *>(control) != nullptr ||
                                   (dynamic_cast<AccessibleControl *>(control) != nullptr &&
                                    control->objectName() != QStringLiteral("framePreview"));
            if (isControl && control->isVisible() && control->isEnabled() && (radio == nullptr || radio->isChecked())) {
                stops << control;
            }
        }
        return stops;
    }

    /// The widgets that get the focus by repeated Tab from the preview, until it returns there.
    QList<QWidget *> tabStops(Qt::Key key = Qt::Key_Tab)
    {
        QList<QWidget *> stops;
        preview().setFocus(Qt::TabFocusReason);
        do {
            QTest::keyClick(QApplication::focusWidget(), key);
            stops << QApplication::focusWidget();
        } while (stops.last() != &preview() && stops.size() < 50);
        return stops;
    }
};

TEST_F(Accessibility, EveryControlOfEveryPanelHasAName)
{
    start();
    for (const char *name : panelActions) {
        SCOPED_TRACE(name);
        showPanel(name);
        // Five menus, six buttons of the tool bar and the preview are always visible.
        EXPECT_GT(expectNames(window), 12);
    }
}

TEST_F(Accessibility, ControlWithoutNameIsDetected)
{
    start();
    child<QWidget>(*panels().currentWidget(), "frameYUV").setAccessibleName(QString());
    int nameless = 0;
    visitVisible(*QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface &element) {
        nameless += needsName(element) && element.text(QAccessible::Name).isEmpty() ? 1 : 0;
    });
    EXPECT_EQ(nameless, 1);
}

TEST_F(Accessibility, EveryControlOfEveryPanelHasAPlainTextDescription)
{
    start();
    for (const char *name : panelActions) {
        SCOPED_TRACE(name);
        showPanel(name);
        for (QWidget *control : expectedStops()) {
            const QString description = descriptionOf(*control);
            EXPECT_FALSE(description.isEmpty()) << control->objectName().toStdString();
            EXPECT_FALSE(description.contains(QLatin1Char('<'))) << description.toStdString();
        }
    }
}

TEST_F(Accessibility, ToolBarButtonsHaveDescriptions)
{
    start();
    const auto &bar = *window.findChild<QToolBar *>();
    for (const char *name : panelActions) {
        QWidget *button = bar.widgetForAction(&action(name));
        EXPECT_EQ(descriptionOf(*button), action(name).statusTip()) << name;
    }
}

TEST_F(Accessibility, EveryLabelOfEveryPanelHasABuddy)
{
    start();
    for (const char *name : panelActions) {
        showPanel(name);
        for (const QLabel *label : panels().currentWidget()->findChildren<QLabel *>()) {
            EXPECT_TRUE(label->text().isEmpty() || label->buddy() != nullptr) << label->objectName().toStdString();
        }
    }
}

TEST_F(Accessibility, MenusHaveNames)
{
    start();
    for (const char *name : {"menuFile", "menuEdit", "menuView", "menuFilter", "menuHelp"}) {
        auto &menu = child<QMenu>(window, name);
        menu.popup(window.mapToGlobal(QPoint(100, 100)));
        EXPECT_GT(expectNames(menu), 0) << name;
        menu.hide();
    }
}

TEST_F(Accessibility, AboutBoxHasNames)
{
    About about;
    about.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
    auto &tabs = child<QTabWidget>(about, "tabWidget");
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        EXPECT_GT(expectNames(about), 4) << page;
    }
}

TEST_F(Accessibility, TabReachesEveryControlAndShiftTabReversesTheOrder)
{
    start();
    for (const char *name : panelActions) {
        SCOPED_TRACE(name);
        showPanel(name);
        QList<QWidget *> stops = tabStops();
        EXPECT_EQ(sortedNames(stops), sortedNames(expectedStops()));

        QList<QWidget *> back = tabStops(Qt::Key_Backtab);
        std::reverse(back.begin(), back.end() - 1);
        EXPECT_EQ(back, stops);
    }
}

// Rows from top to bottom, each row from left to right. The numbers beside a wheel form a column.
TEST_F(Accessibility, TabOrderIsTopToBottomAndEndsAtThePreview)
{
    start();
    for (const char *name : panelActions) {
        SCOPED_TRACE(name);
        showPanel(name);
        const QList<QWidget *> stops = tabStops();
        for (int i = 1; i + 1 < stops.size(); ++i) {
            const QRect before(stops[i - 1]->mapTo(&window, QPoint()), stops[i - 1]->size());
            const QRect now(stops[i]->mapTo(&window, QPoint()), stops[i]->size());
            EXPECT_TRUE(now.top() > before.bottom() || now.left() > before.right())
                << stops[i - 1]->objectName().toStdString() << ", " << stops[i]->objectName().toStdString();
        }
        EXPECT_EQ(stops.last(), &preview());
    }
}

TEST_F(Accessibility, FocusIsVisibleOnEveryControl)
{
    start();
    for (const char *name : panelActions) {
        SCOPED_TRACE(name);
        showPanel(name);
        const QList<QWidget *> stops = tabStops();
        QList<QImage> focused;
        for (QWidget *stop : stops) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            focused << stop->grab().toImage();
        }
        for (int i = 0; i < stops.size(); ++i) {
            stops[i]->clearFocus();
            EXPECT_NE(stops[i]->grab().toImage(), focused[i]) << stops[i]->objectName().toStdString();
        }
    }
}

} // namespace
