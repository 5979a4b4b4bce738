// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

namespace grisal::test
{

/// What the test runner takes for "skipped".
constexpr int skippedStatus = 77;

/// Runs all tests. The status of a test program: that of its failures if there are any, else "skipped" if a test was.
inline int runAllTests()
{
    const int status = RUN_ALL_TESTS();
    const bool skipped = testing::UnitTest::GetInstance()->skipped_test_count() > 0;
    return status == 0 && skipped ? skippedStatus : status;
}

} // namespace grisal::test
