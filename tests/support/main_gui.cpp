// SPDX-License-Identifier: MIT
#include "graphics/gl/SurfaceFormat.h"
#include "tests/support/ExitStatus.h"
#include "tests/support/TestHome.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char **argv)
{
    grisal::test::TestHome home;
    grisal::graphics::setDefaultSurfaceFormat();
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return grisal::test::runAllTests(home);
}
