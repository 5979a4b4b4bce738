// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

namespace grisal::graphics
{

/// Cuts 0..count into neighbouring bands of at least `smallest` and runs work(first, end) for each of them, on several
/// cores at the same time where there are several; returns when all are done. The bands' work must not touch each
/// other's results. What one of them throws is thrown here, once all are done.
void inBands(std::size_t count, std::size_t smallest, const std::function<void(std::size_t, std::size_t)> &work);

} // namespace grisal::graphics
