// SPDX-License-Identifier: MIT
#pragma once

#include "math/ColorRGB.h"

namespace grisal::math
{

/// The largest absolute value of a channel weight.
constexpr float largestWeight = 512;

/// Returns the weight, clamped to -512..512.
float clampedWeight(float weight);

/// The coefficients of the mean: `third` for red and blue, `greenThird` for green.
constexpr double third = 0.333333333333;
constexpr double greenThird = 0.333333333334;

/// Returns the mean of the channels, Y = R/3 + G/3 + B/3, with the coefficients above. U = B - Y and V = R - Y are the
/// other two axes of this colour space.
float meanOf(const ColorRGB<float> &weights);

/// Converts Y, U and V back to weights: R = Y + V and B = Y + U, both clamped, and G = (Y - R/3 - B/3) * 3, clamped,
/// which compensates for the clamping of R and B. R, G and B are single precision.
ColorRGB<float> weightsAt(float luma, float chromaU, float chromaV);

/// Moves all channels by the same amount so that their mean is `mean`; their differences, the tint, stay the same.
/// R' = R - Y + mean and B' = B - Y + mean, both clamped, and G' follows from R', B' and the mean as in weightsAt().
ColorRGB<float> shiftedToMean(const ColorRGB<float> &weights, double mean);

/// As shiftedToMean(), but so that the sum of the channels is `sum`.
ColorRGB<float> shiftedToSum(const ColorRGB<float> &weights, float sum);

} // namespace grisal::math
