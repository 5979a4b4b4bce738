// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IFilter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace grisal::test
{

/// Expects these among the filters, in this order. A filter that is added to the program may come in between.
inline void expectInOrder(const std::vector<graphics::IFilter *> &filters, const std::vector<std::string> &expected)
{
    std::vector<std::string> names;
    for (const graphics::IFilter *filter : filters) {
        if (std::find(expected.begin(), expected.end(), filter->getName()) != expected.end()) {
            names.push_back(filter->getName());
        }
    }
    EXPECT_EQ(names, expected);
}

} // namespace grisal::test
