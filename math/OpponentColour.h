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

/// The mean of the channels, Y = R/3 + G/3 + B/3, with the thirds of the mixer: 0.333333333333, 0.333333333334 for
/// green, 0.333333333333. U = B - Y and V = R - Y are the other two axes of this colour space.
float meanOf(const ChannelWeights &weights);

/// Moves all channels by the same amount so that they add up to `sum`: their differences, the tint, stay. With
/// t = sum / 3 it is R' = R - Y + t, B' = B - Y + t, both clamped, and G' = (t - R'/3 - B'/3) * 3, clamped, which
/// takes up what the clamping of the others left. R', G' and B' are single precision.
ChannelWeights shiftedToSum(const ChannelWeights &weights, float sum);

} // namespace grisal::math
