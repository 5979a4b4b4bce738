// SPDX-License-Identifier: MIT
#include "ui/accessible/AccessibleControl.h"

#include "tests/support/AccessibilityEventRecorder.h"
#include "tests/support/GuiTest.h"

#include <QTest>
#include <QWidget>

namespace
{

using namespace grisal::test;

class Lamp : public QWidget, public AccessibleControl
{
public:
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QString accessibleValue() const override { return m_on ? QStringLiteral("on") : QStringLiteral("off"); }

    void set(bool on)
    {
        m_on = on;
        notifyValueChanged();
    }

private:
    bool m_on = false;
};

class AccessibleControlTest : public GuiTest
{
protected:
    void SetUp() override { GRISAL_SKIP_WITHOUT_SCREEN_READER(); }

    void show()
    {
        lamp.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&lamp));
    }

    Lamp lamp;
};

TEST_F(AccessibleControlTest, InterfaceReturnsRoleAndValue)
{
    EXPECT_EQ(roleOf(lamp), QAccessible::Indicator);
    EXPECT_EQ(accessibleText(lamp, QAccessible::Value), QStringLiteral("off"));
    lamp.set(true);
    EXPECT_EQ(accessibleText(lamp, QAccessible::Value), QStringLiteral("on"));
}

TEST_F(AccessibleControlTest, DescriptionStartsWithTheValue)
{
    EXPECT_EQ(accessibleText(lamp, QAccessible::Description), QStringLiteral("off"));
    lamp.setAccessibleDescription(QStringLiteral("Press it"));
    EXPECT_EQ(accessibleText(lamp, QAccessible::Description), QStringLiteral("off. Press it"));
}

TEST_F(AccessibleControlTest, NameIsTheNameOfTheWidget)
{
    lamp.setAccessibleName(QStringLiteral("Lamp"));
    EXPECT_EQ(accessibleText(lamp, QAccessible::Name), QStringLiteral("Lamp"));
}

TEST_F(AccessibleControlTest, ChangedValueIsReportedOnce)
{
    show();
    AccessibilityEventRecorder recorder;
    lamp.set(true);
    lamp.set(true);
    EXPECT_EQ(recorder.valuesOf(lamp), QStringList(QStringLiteral("on")));
    lamp.set(false);
    EXPECT_EQ(recorder.valuesOf(lamp), QStringList(QStringLiteral("off")));
}

TEST_F(AccessibleControlTest, HiddenControlReportsNothing)
{
    show();
    lamp.hide();
    AccessibilityEventRecorder recorder;
    lamp.set(true);
    EXPECT_TRUE(recorder.valuesOf(lamp).isEmpty());
    lamp.show();
    lamp.set(false);
    EXPECT_EQ(recorder.valuesOf(lamp), QStringList(QStringLiteral("off")));
}

TEST_F(AccessibleControlTest, OrdinaryWidgetsAreNotAffected)
{
    QWidget plain;
    EXPECT_EQ(roleOf(plain), QAccessible::Client);
    EXPECT_EQ(accessibleText(plain, QAccessible::Value), QString());
}

} // namespace
