// SPDX-License-Identifier: MIT
#include "math/OpponentColour.h"

#include <algorithm>

namespace grisal::math
{

namespace
{

float greenOf(double mean, float r, float b)
{
    return clampedWeight(static_cast<float>((mean - third * r - third * b) / greenThird));
}

} // namespace

float clampedWeight(float weight)
{
    return std::clamp(weight, -largestWeight, largestWeight);
}

float meanOf(const ColorRGB<float> &weights)
{
    return static_cast<float>(third * weights.r + greenThird * weights.g + third * weights.b);
}

ColorRGB<float> weightsAt(float luma, float chromaU, float chromaV)
{
    ColorRGB<float> weights;
    weights.r = clampedWeight(luma + chromaV);
    weights.b = clampedWeight(luma + chromaU);
    weights.g = greenOf(luma, weights.r, weights.b);
    return weights;
}

ColorRGB<float> shiftedToMean(const ColorRGB<float> &weights, double mean)
{
    const double before = third * weights.r + greenThird * weights.g + third * weights.b;
    ColorRGB<float> shifted;
    shifted.r = clampedWeight(static_cast<float>(weights.r - before + mean));
    shifted.b = clampedWeight(static_cast<float>(weights.b - before + mean));
    shifted.g = greenOf(mean, shifted.r, shifted.b);
    return shifted;
}

ColorRGB<float> shiftedToSum(const ColorRGB<float> &weights, float sum)
{
    return shiftedToMean(weights, static_cast<double>(sum) / 3.0);
}

} // namespace grisal::math
