// SPDX-License-Identifier: MIT
#include "graphics/image/ToneHistogram.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

using namespace grisal::graphics;

namespace
{

using Bytes = std::vector<std::uint8_t>;
using Samples16 = std::vector<std::uint16_t>;

template <typename Sample>
QVector<float> histogramOf(const std::vector<Sample> &samples, bool withAlpha)
{
    const int components = withAlpha ? rgbaComponents : rgbComponents;
    Raster<Sample> image(static_cast<int>(samples.size()) / components, 1, components);
    image.samples = samples;
    return toneHistogram(image);
}

QVector<float> ofBytes(const Bytes &bytes, bool withAlpha = false)
{
    return histogramOf(bytes, withAlpha);
}

QVector<float> of16BitSamples(const Samples16 &samples, bool withAlpha = false)
{
    return histogramOf(samples, withAlpha);
}

/// A histogram of zeros except for the given bins.
QVector<float> bins(std::initializer_list<std::pair<int, float>> filled)
{
    QVector<float> histogram(256, 0.0F);
    for (const auto &[bin, value] : filled) {
        histogram[bin] = value;
    }
    return histogram;
}

TEST(ToneHistogramTest, IsEmptyWithoutPixels)
{
    EXPECT_EQ(toneHistogram(Image8()), bins({}));
    EXPECT_EQ(toneHistogram(Image16()), bins({}));
}

TEST(ToneHistogramTest, ContainsThirtyTimesTheShareOfEachTone)
{
    EXPECT_EQ(ofBytes({10, 10, 10, 10, 10, 10, 10, 10, 10, 200, 200, 200}), bins({{10, 22.5F}, {200, 7.5F}}));
}

TEST(ToneHistogramTest, ReachesOneForAThirtiethOfThePixels)
{
    Bytes bytes(30 * 3, 0);
    bytes[0] = bytes[1] = bytes[2] = 77;
    EXPECT_FLOAT_EQ(ofBytes(bytes)[77], 1.0F);
}

TEST(ToneHistogramTest, TruncatesTheMeanOfTheChannels)
{
    EXPECT_EQ(ofBytes({0, 0, 2}), bins({{0, 30.0F}}));
    EXPECT_EQ(ofBytes({1, 1, 1}), bins({{1, 30.0F}}));
    EXPECT_EQ(ofBytes({255, 0, 0}), bins({{85, 30.0F}}));
    EXPECT_EQ(ofBytes({255, 255, 254}), bins({{254, 30.0F}}));
    EXPECT_EQ(ofBytes({255, 255, 255}), bins({{255, 30.0F}}));
}

TEST(ToneHistogramTest, CountsEveryGreyInItsOwnBin)
{
    Bytes bytes;
    for (int level = 0; level < 256; ++level) {
        bytes.insert(bytes.end(), 3, static_cast<std::uint8_t>(level));
    }
    EXPECT_EQ(ofBytes(bytes), QVector<float>(256, 30.0F / 256.0F));
}

TEST(ToneHistogramTest, SkipsTheFourthComponent)
{
    EXPECT_EQ(ofBytes({10, 10, 10, 255, 20, 20, 20, 255}, true), bins({{10, 15.0F}, {20, 15.0F}}));
    EXPECT_EQ(of16BitSamples({255, 255, 255, 65535, 510, 510, 510, 65535}, true), bins({{1, 15.0F}, {2, 15.0F}}));
}

// The curve panel has always sampled only every 255th value of 16-bit images.
TEST(ToneHistogramTest, SamplesEvery255thValueOf16Bits)
{
    EXPECT_EQ(of16BitSamples({254, 254, 254}), bins({}));
    EXPECT_EQ(of16BitSamples({255, 255, 255}), bins({{1, 30.0F}}));
    EXPECT_EQ(of16BitSamples({256, 256, 256}), bins({}));
    EXPECT_EQ(of16BitSamples({25500, 25500, 25500}), bins({{100, 30.0F}}));
    EXPECT_EQ(of16BitSamples({65025, 65025, 65025}), bins({{255, 30.0F}}));
}

TEST(ToneHistogramTest, OmitsTheBrightest16BitTones)
{
    EXPECT_EQ(of16BitSamples({65535, 65535, 65535}), bins({}));
}

TEST(ToneHistogramTest, TruncatesTheMeanOf16BitChannels)
{
    EXPECT_EQ(of16BitSamples({255, 255, 257}), bins({{1, 30.0F}}));
    EXPECT_EQ(of16BitSamples({765, 0, 0}), bins({{1, 30.0F}}));
}

TEST(ToneHistogramTest, CountsAllSampledValuesOfAFullRamp)
{
    Samples16 samples;
    for (int level = 0; level < 65536; ++level) {
        samples.insert(samples.end(), 3, static_cast<std::uint16_t>(level));
    }
    EXPECT_EQ(of16BitSamples(samples), QVector<float>(256, 30.0F / 65536.0F));
}

} // namespace
