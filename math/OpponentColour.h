// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::math
{

/// Three channel weights, on the scale 0..255 of the mixer, where they may lie outside of it.
struct ChannelWeights {
    float r = 0;
    float g = 0;
    float b = 0;
};

/// The limits of a channel weight on both sides.
constexpr float largestWeight = 512;

/// A weight, kept within -512..512.
float clampedWeight(float weight);

/// The weights of the mean: those of red and blue, and that of green.
constexpr double third = 0.333333333333;
constexpr double greenThird = 0.333333333334;

/// The mean of the channels, Y = R/3 + G/3 + B/3, with the thirds above. U = B - Y and V = R - Y are the other two axes
/// of this colour space.
float meanOf(const ChannelWeights &weights);

/// The way back from Y, U and V: R = Y + V and B = Y + U, both clamped, and G = (Y - R/3 - B/3) * 3, clamped, which
/// takes up what the clamping of the others left. R, G and B are single precision.
ChannelWeights weightsAt(float luma, float chromaU, float chromaV);

/// Moves all channels by the same amount so that their mean is `mean`: their differences, the tint, stay. It is
/// R' = R - Y + mean, B' = B - Y + mean, and G' from them and the mean as above.
ChannelWeights shiftedToMean(const ChannelWeights &weights, double mean);

/// The same, so that the channels add up to `sum`.
ChannelWeights shiftedToSum(const ChannelWeights &weights, float sum);

} // namespace grisal::math
