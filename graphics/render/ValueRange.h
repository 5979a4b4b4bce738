// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <utility>

namespace grisal::graphics
{

/// Smallest and largest first component over `count` pixels of `components` (3 or 4) bytes or 16-bit words. Without
/// pixels 65535 and 0.
template <typename T>
std::pair<unsigned, unsigned> valueRange(const T *pixels, std::size_t count, std::size_t components);

} // namespace grisal::graphics
