// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pictures.h"

#include <gtest/gtest.h>

#include <string>

namespace grisal::test
{

/// The difference of two images, in units of their components.
struct Difference {
    double worst = 0;        ///< largest absolute difference
    double mean = 0;         ///< mean absolute difference
    double rms = 0;          ///< square root of the mean squared difference
    std::size_t unequal = 0; ///< number of components that differ
    int x = 0;               ///< position of the largest difference
    int y = 0;
    int component = 0;
    double actual = 0; ///< both values at this position
    double expected = 0;
};

/// The allowed difference of two images.
struct Limits {
    double worst = 0; ///< maximum for any component
    double mean = 0;  ///< maximum of the mean over all components; 0 means no limit except `worst`
};

/// Compares two images of the same size component by component.
template <typename T>
Difference difference(const Pixels<T> &actual, const Pixels<T> &expected);

/// Succeeds if no component differs by more than limits.worst and the mean difference is at most limits.mean, and
/// prints the largest difference. Otherwise reports position and size of the difference and saves the actual image as
/// NAME.png in the folder test-pictures of the build. Images of different size or without pixels always fail.
template <typename T>
testing::AssertionResult picturesNear(const std::string &name, const Pixels<T> &actual, const Pixels<T> &expected,
                                      const Limits &limits = {});

} // namespace grisal::test
