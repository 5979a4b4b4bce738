// SPDX-License-Identifier: MIT
#include "graphics/image/ToneHistogram.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace grisal::graphics
{

namespace
{

constexpr std::size_t outputBins = 256;
constexpr float fullShare = 30.0F; // a thirtieth of the pixels fills a bin's height

template <typename Component>
std::size_t toneOf(const Component *pixel)
{
    constexpr float maximum = std::numeric_limits<Component>::max();
    const float mean = (float(pixel[0]) + float(pixel[1]) + float(pixel[2])) / 3.0F;
    return static_cast<std::size_t>(std::clamp(mean, 0.0F, maximum));
}

template <typename Component>
std::vector<std::size_t> countTones(const Component *pixels, std::size_t count, std::size_t components)
{
    std::vector<std::size_t> tones(std::size_t{std::numeric_limits<Component>::max()} + 1);
    for (std::size_t i = 0; i < count; ++i) {
        ++tones[toneOf(pixels + i * components)];
    }
    return tones;
}

QVector<float> sampled(const std::vector<std::size_t> &tones, std::size_t step, std::size_t count)
{
    QVector<float> histogram(outputBins);
    for (std::size_t i = 0; i < outputBins; ++i) {
        histogram[static_cast<qsizetype>(i)] = float(tones[i * step]) / float(count) * fullShare;
    }
    return histogram;
}

} // namespace

QVector<float> toneHistogram(const void *pixels, std::size_t count, bool sixteenBit, bool withAlpha)
{
    if (!pixels || count == 0) {
        return QVector<float>(outputBins, 0.0F);
    }
    const std::size_t components = withAlpha ? 4 : 3;
    if (sixteenBit) {
        constexpr std::size_t step = 255;
        return sampled(countTones(static_cast<const std::uint16_t *>(pixels), count, components), step, count);
    }
    return sampled(countTones(static_cast<const std::uint8_t *>(pixels), count, components), 1, count);
}

} // namespace grisal::graphics
