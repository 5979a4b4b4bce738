// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestHome.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace grisal::test
{

/// The exit status that CTest reports as "skipped".
constexpr int skippedStatus = 77;

/// Runs all tests and returns the exit status of the test program: failure if a test failed or left temporary files,
/// otherwise "skipped" if a test was skipped.
inline int runAllTests(TestHome &home)
{
    const int result = RUN_ALL_TESTS();
    const int status = home.isCleanAtEnd() ? result : EXIT_FAILURE;
    const bool skipped = testing::UnitTest::GetInstance()->skipped_test_count() > 0;
    return status == 0 && skipped ? skippedStatus : status;
}

} // namespace grisal::test
