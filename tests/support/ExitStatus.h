// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

namespace grisal::test
{

/// The exit status that CTest reports as "skipped".
constexpr int skippedStatus = 77;

/// Runs all tests and returns the exit status of the test program: failure if a test failed, otherwise "skipped" if a
/// test was skipped.
inline int runAllTests()
{
    const int status = RUN_ALL_TESTS();
    const bool skipped = testing::UnitTest::GetInstance()->skipped_test_count() > 0;
    return status == 0 && skipped ? skippedStatus : status;
}

} // namespace grisal::test
