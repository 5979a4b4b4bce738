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

/// The half float, by its bits, that is nearest to word / 65535, the even one of two equally near. A driver that takes
/// words for a texture of halves computes the same, at a third of the speed of taking the halves.
std::uint16_t halfOfWord(std::uint16_t word);

/// Makes half floats of `count` words.
void halvesOfWords(const std::uint16_t *words, std::size_t count, std::uint16_t *halves);

/// Makes words of `count` half floats.
void wordsOfHalves(const std::uint16_t *halves, std::size_t count, std::uint16_t *words);

} // namespace grisal::graphics
