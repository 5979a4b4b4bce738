// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"

#include <gtest/gtest-spi.h>

#include <QtGlobal>

namespace
{

using grisal::test::GuiTest;
using grisal::test::timeOutNow;

/// A GuiTest whose TearDown() can be called explicitly.
class EndableGuiTest : public GuiTest
{
public:
    using GuiTest::allowWarning;
    using GuiTest::expectWarning;
    using GuiTest::TearDown;

    void TestBody() override {}
};

TEST(GuiTestTest, FailsForUnexpectedWarning)
{
    EndableGuiTest test;
    test.expectWarning(QStringLiteral("one"));
    test.allowWarning(QStringLiteral("two"));
    qWarning("one");
    qWarning("three");
    EXPECT_NONFATAL_FAILURE(test.TearDown(), "unexpected warning: three");
}

TEST(GuiTestTest, FailsForMissingExpectedWarning)
{
    EndableGuiTest test;
    test.expectWarning(QStringLiteral("one"));
    EXPECT_NONFATAL_FAILURE(test.TearDown(), "missing warning: one");
}

TEST(GuiTestTest, PassesWithExpectedAndAllowedWarnings)
{
    EndableGuiTest test;
    test.expectWarning(QStringLiteral("one"));
    test.allowWarning(QStringLiteral("two"));
    test.allowWarning(QStringLiteral("three"));
    qWarning("one of many");
    qWarning("one of many");
    qWarning("two");
    test.TearDown();
}

TEST(GuiTestTest, ThrowsForEmptyPart)
{
    EndableGuiTest test;
    EXPECT_THROW(test.expectWarning(QString()), std::invalid_argument);
    EXPECT_THROW(test.expectWarning(QStringLiteral("")), std::invalid_argument);
    EXPECT_THROW(test.allowWarning(QString()), std::invalid_argument);
}

TEST(GuiTestTest, TimeOutNowEndsOnlyRunningTimers)
{
    QTimer timer;
    timer.setSingleShot(true);
    int timeouts = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++timeouts; });
    timeOutNow(timer);
    EXPECT_EQ(timeouts, 0);
    timer.start(1000000);
    timeOutNow(timer);
    EXPECT_EQ(timeouts, 1);
    EXPECT_FALSE(timer.isActive());
}

} // namespace
