// SPDX-License-Identifier: MIT
#include "graphics/image/ToneHistogram.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace grisal::graphics
{

namespace
{

constexpr std::size_t outputBins = 256;
constexpr float fullShare = 30.0F; // a bin with a thirtieth of the pixels has the value 1

/// Counts the means of the three colour components, rounded down. Four counters per tone are used in turn: neighbouring
/// pixels mostly have the same tone, and incrementing the counter that was just written would have to wait for that
/// write.
template <typename Component, std::size_t components>
void addTones(const Component *pixels, std::size_t count, std::vector<std::size_t> &tones)
{
    constexpr std::size_t turns = 4;
    std::vector<std::uint32_t> counters(turns * tones.size());
    for (std::size_t i = 0; i < count; ++i, pixels += components) {
        const std::uint32_t sum = std::uint32_t{pixels[0]} + pixels[1] + pixels[2];
        ++counters[i % turns * tones.size() + sum / 3];
    }
    for (std::size_t i = 0; i < counters.size(); ++i) {
        tones[i % tones.size()] += counters[i];
    }
}

template <typename Component>
std::vector<std::size_t> countTones(const void *pixels, std::size_t count, bool withAlpha)
{
    std::vector<std::size_t> tones(std::size_t{std::numeric_limits<Component>::max()} + 1);
    const auto *components = static_cast<const Component *>(pixels);
    if (withAlpha) {
        addTones<Component, 4>(components, count, tones);
    } else {
        addTones<Component, 3>(components, count, tones);
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
    if (sixteenBit) {
        constexpr std::size_t step = 255;
        return sampled(countTones<std::uint16_t>(pixels, count, withAlpha), step, count);
    }
    return sampled(countTones<std::uint8_t>(pixels, count, withAlpha), 1, count);
}

} // namespace grisal::graphics
