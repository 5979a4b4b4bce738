// SPDX-License-Identifier: MIT
#include "graphics/image/ToneHistogram.h"

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
template <std::size_t components, typename Sample>
void addTones(const Sample *pixels, std::size_t count, std::vector<std::size_t> &tones)
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

template <typename Sample>
std::vector<std::size_t> countTones(const Raster<Sample> &image)
{
    std::vector<std::size_t> tones(std::size_t{std::numeric_limits<Sample>::max()} + 1);
    if (image.components == rgbaComponents) {
        addTones<rgbaComponents>(image.samples.data(), image.pixelCount(), tones);
    } else {
        addTones<rgbComponents>(image.samples.data(), image.pixelCount(), tones);
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

QVector<float> toneHistogram(const Image &image)
{
    if (isEmpty(image)) {
        return QVector<float>(outputBins, 0.0F);
    }
    if (const auto *image16 = std::get_if<Image16>(&image)) {
        constexpr std::size_t step = 255;
        return sampled(countTones(*image16), step, image16->pixelCount());
    }
    const auto &image8 = std::get<Image8>(image);
    return sampled(countTones(image8), 1, image8.pixelCount());
}

} // namespace grisal::graphics
