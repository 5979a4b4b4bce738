// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterParameters.h"

namespace grisal::graphics
{

namespace
{

constexpr int samples = 256;

QVector<float> identityCurve()
{
    QVector<float> curve(samples);
    for (int i = 0; i < samples; ++i) {
        curve[i] = static_cast<float>(i) / samples;
    }
    return curve;
}

constexpr ColorRGB<float> fromBytes(float r, float g, float b)
{
    return {r / 255.0F, g / 255.0F, b / 255.0F};
}

} // namespace

FilterParameters::FilterParameters()
    : mixerWeights{1.0F / 3, 1.0F / 3, 1.0F / 3}, curve(identityCurve()), highlightTint(fromBytes(190, 156, 54)),
      shadowTint(fromBytes(110, 148, 198)), grainWeights(samples, 0.0F)
{
}

} // namespace grisal::graphics
