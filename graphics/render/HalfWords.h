// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace grisal::graphics
{

/// The 16-bit word of a half float, given by its bits: 0..1 becomes 0..65535, rounded to the nearest, to the even one
/// of two equally near; less is 0, more is 65535. A driver that hands out halves as GL_UNSIGNED_SHORT computes the
/// same, at a tenth of the speed of handing out the halves. What is not a number is 0.
std::uint16_t wordOfHalf(std::uint16_t half);

/// Makes words of `count` half floats.
void wordsOfHalves(const std::uint16_t *halves, std::size_t count, std::uint16_t *words);

} // namespace grisal::graphics
