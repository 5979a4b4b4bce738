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

float meanOf(const ChannelWeights &weights)
{
    return static_cast<float>(third * weights.r + greenThird * weights.g + third * weights.b);
}

ChannelWeights weightsAt(float luma, float chromaU, float chromaV)
{
    ChannelWeights weights;
    weights.r = clampedWeight(luma + chromaV);
    weights.b = clampedWeight(luma + chromaU);
    weights.g = greenOf(luma, weights.r, weights.b);
    return weights;
}

ChannelWeights shiftedToMean(const ChannelWeights &weights, double mean)
{
    const double before = third * weights.r + greenThird * weights.g + third * weights.b;
    ChannelWeights shifted;
    shifted.r = clampedWeight(static_cast<float>(weights.r - before + mean));
    shifted.b = clampedWeight(static_cast<float>(weights.b - before + mean));
    shifted.g = greenOf(mean, shifted.r, shifted.b);
    return shifted;
}

ChannelWeights shiftedToSum(const ChannelWeights &weights, float sum)
{
    return shiftedToMean(weights, static_cast<double>(sum) / 3.0);
}

} // namespace grisal::math
