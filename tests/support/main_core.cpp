// SPDX-License-Identifier: MIT
#include "tests/support/ExitStatus.h"
#include "tests/support/TestHome.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char **argv)
{
    grisal::test::TestHome home;
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return grisal::test::runAllTests(home);
}
