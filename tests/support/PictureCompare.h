// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pictures.h"

#include <gtest/gtest.h>

#include <string>

namespace grisal::test
{

/// How far two pictures are apart, in units of their components.
struct Difference {
    double worst = 0;        ///< largest absolute difference
    double mean = 0;         ///< mean absolute difference
    double rms = 0;          ///< square root of the mean squared difference
    std::size_t unequal = 0; ///< components that differ at all
    int x = 0;               ///< where the worst one is
    int y = 0;
    int component = 0;
    double actual = 0; ///< both values there
    double expected = 0;
};

/// What two pictures may differ by.
struct Limits {
    double worst = 0; ///< of any component
    double mean = 0;  ///< of all components together; 0 leaves the mean to the worst
};

/// Compares two pictures of the same shape, component by component.
template <typename T>
Difference difference(const Pixels<T> &actual, const Pixels<T> &expected);

/// Succeeds where no component differs by more than limits.worst and all together by no more than limits.mean on
/// average, and prints the largest difference. Otherwise tells where and how much and saves the actual picture as
/// NAME.png in the build's folder test-pictures. Pictures of different or no shape are never near.
template <typename T>
testing::AssertionResult picturesNear(const std::string &name, const Pixels<T> &actual, const Pixels<T> &expected,
                                      const Limits &limits = {});

} // namespace grisal::test
