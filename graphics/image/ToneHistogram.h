// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <cstddef>

namespace grisal::graphics
{

/// The tone histogram behind the curve: 256 bins over the mean (R + G + B) / 3 of `count` interleaved pixels of 3
/// components, or 4 with `withAlpha` (the fourth is skipped), bytes or 16-bit words.
///
/// A bin holds its share of the pixels times 30: a tone that a thirtieth of all pixels has reaches 1; more is
/// possible. With 16 bits, bin i is the count of the single value i * 255, a sample and not a sum. No pixels give
/// zeros.
QVector<float> toneHistogram(const void *pixels, std::size_t count, bool sixteenBit, bool withAlpha);

} // namespace grisal::graphics
