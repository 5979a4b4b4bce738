// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Image.h"

#include <QVector>

namespace grisal::graphics
{

/// Returns the tone histogram that is drawn behind the curve: 256 bins for the means (R + G + B) / 3 of the pixels.
///
/// The value of a bin is its share of the pixels times 30: a thirtieth of the pixels gives 1, and larger values are
/// possible. With 16 bits, bin i counts only the pixels whose mean, rounded down, is i * 255, not a range of means. If
/// there are no pixels, all bins are 0.
QVector<float> toneHistogram(const Image &image);

} // namespace grisal::graphics
