// SPDX-License-Identifier: MIT
#include "math/OpponentColour.h"

#include <algorithm>

namespace grisal::math
{

namespace
{

constexpr double third = 0.333333333333;
constexpr double greenThird = 0.333333333334;

} // namespace

float clampedWeight(float weight)
{
    return std::clamp(weight, -largestWeight, largestWeight);
}

float meanOf(const ChannelWeights &weights)
{
    return static_cast<float>(third * weights.r + greenThird * weights.g + third * weights.b);
}

ChannelWeights shiftedToSum(const ChannelWeights &weights, float sum)
{
    const double mean = third * weights.r + greenThird * weights.g + third * weights.b;
    const double target = static_cast<double>(sum) / 3.0;
    ChannelWeights shifted;
    shifted.r = clampedWeight(static_cast<float>(weights.r - mean + target));
    shifted.b = clampedWeight(static_cast<float>(weights.b - mean + target));
    shifted.g = clampedWeight(static_cast<float>((target - third * shifted.r - third * shifted.b) / greenThird));
    return shifted;
}

} // namespace grisal::math
