// SPDX-License-Identifier: MIT
//
// The stored noise of the film grain is white, has no bias and is isotropic.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <fstream>
#include <iostream>
#include <iterator>
#include <numbers>
#include <numeric>
#include <vector>

namespace
{

constexpr std::size_t side = 512;
constexpr std::size_t texels = side * side;
constexpr std::size_t channels = 3;

using Channel = std::vector<double>;
using Spectrum = std::vector<std::complex<double>>;

std::vector<unsigned char> noiseFile()
{
    std::ifstream file(GRISAL_NOISE_MAP, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

double meanOf(const std::vector<double> &values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

double varianceOf(const std::vector<double> &values)
{
    const double mean = meanOf(values);
    double sum = 0;
    for (const double value : values) {
        sum += (value - mean) * (value - mean);
    }
    return sum / static_cast<double>(values.size());
}

/// Correlation of one channel with another that is shifted cyclically by (dx, dy).
double correlation(const Channel &a, const Channel &b, std::size_t dx, std::size_t dy)
{
    const double meanA = meanOf(a);
    const double meanB = meanOf(b);
    double sum = 0;
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < side; ++x) {
            sum += (a[y * side + x] - meanA) * (b[(y + dy) % side * side + (x + dx) % side] - meanB);
        }
    }
    return sum / static_cast<double>(texels) / std::sqrt(varianceOf(a) * varianceOf(b));
}

/// Fourier transform in place, for a power of two of values at a distance of `stride`.
void fourier(std::complex<double> *values, std::size_t count, std::size_t stride)
{
    std::vector<std::complex<double>> in(count);
    std::vector<std::complex<double>> out(count);
    for (std::size_t i = 0; i < count; ++i) {
        in[i] = values[i * stride];
    }
    // Stockham's algorithm: the parts double in length until one is left.
    for (std::size_t length = 1; length < count; length *= 2) {
        const std::size_t parts = count / (2 * length);
        for (std::size_t k = 0; k < length; ++k) {
            const auto turn = std::polar(1.0, -std::numbers::pi * static_cast<double>(k) / static_cast<double>(length));
            for (std::size_t part = 0; part < parts; ++part) {
                const auto even = in[k * 2 * parts + part];
                const auto odd = in[k * 2 * parts + part + parts] * turn;
                out[k * parts + part] = even + odd;
                out[(k + length) * parts + part] = even - odd;
            }
        }
        in.swap(out);
    }
    for (std::size_t i = 0; i < count; ++i) {
        values[i * stride] = in[i];
    }
}

/// Energy of each frequency relative to white noise with the same variance; without frequency 0.
std::vector<double> energies(const Channel &channel)
{
    const double mean = meanOf(channel);
    Spectrum spectrum(texels);
    std::transform(channel.begin(), channel.end(), spectrum.begin(), [=](double value) { return value - mean; });
    for (std::size_t y = 0; y < side; ++y) {
        fourier(spectrum.data() + y * side, side, 1);
    }
    for (std::size_t x = 0; x < side; ++x) {
        fourier(spectrum.data() + x, side, side);
    }
    const double white = varianceOf(channel) * static_cast<double>(texels);
    std::vector<double> result(texels);
    std::transform(spectrum.begin(), spectrum.end(), result.begin(),
                   [=](std::complex<double> wave) { return std::norm(wave) / white; });
    return result;
}

class NoiseMapTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const std::vector<unsigned char> bytes = noiseFile();
        ASSERT_EQ(bytes.size(), texels * channels) << GRISAL_NOISE_MAP;
        for (std::size_t c = 0; c < channels; ++c) {
            m_channels[c].resize(texels);
            for (std::size_t i = 0; i < texels; ++i) {
                m_channels[c][i] = bytes[i * channels + c];
            }
        }
    }

    std::array<Channel, channels> m_channels;
};

} // namespace

TEST_F(NoiseMapTest, EveryChannelUsesTheWholeRange)
{
    for (const Channel &channel : m_channels) {
        EXPECT_EQ(*std::min_element(channel.begin(), channel.end()), 0);
        EXPECT_EQ(*std::max_element(channel.begin(), channel.end()), 255);
    }
}

TEST_F(NoiseMapTest, EveryChannelHasTheMeanOfMiddleGrey)
{
    for (const Channel &channel : m_channels) {
        EXPECT_NEAR(meanOf(channel), 127.5, 0.2);
    }
}

TEST_F(NoiseMapTest, NeighboursAreUncorrelated)
{
    for (const Channel &channel : m_channels) {
        EXPECT_NEAR(correlation(channel, channel, 1, 0), 0, 0.01);
        EXPECT_NEAR(correlation(channel, channel, 0, 1), 0, 0.01);
        EXPECT_NEAR(correlation(channel, channel, 1, 1), 0, 0.01);
        EXPECT_NEAR(correlation(channel, channel, side - 1, 1), 0, 0.01);
    }
}

TEST_F(NoiseMapTest, PixelsAtTypicalPeriodsAreUncorrelated)
{
    for (const Channel &channel : m_channels) {
        for (const std::size_t distance : {2U, 3U, 4U, 8U, 16U, 32U, 64U, 128U, 256U}) {
            EXPECT_NEAR(correlation(channel, channel, distance, 0), 0, 0.01) << distance;
            EXPECT_NEAR(correlation(channel, channel, 0, distance), 0, 0.01) << distance;
        }
    }
}

TEST_F(NoiseMapTest, ChannelsAreUncorrelated)
{
    EXPECT_NEAR(correlation(m_channels[0], m_channels[1], 0, 0), 0, 0.01);
    EXPECT_NEAR(correlation(m_channels[0], m_channels[2], 0, 0), 0, 0.01);
    EXPECT_NEAR(correlation(m_channels[1], m_channels[2], 0, 0), 0, 0.01);
}

// The mean of 512 independent values has a 512th of their variance; 512 rows estimate it with an error of 6 %.
TEST_F(NoiseMapTest, RowsAndColumnsHaveTheMeansOfIndependentValues)
{
    for (const Channel &channel : m_channels) {
        std::vector<double> rows(side);
        std::vector<double> columns(side);
        for (std::size_t i = 0; i < texels; ++i) {
            rows[i / side] += channel[i] / static_cast<double>(side);
            columns[i % side] += channel[i] / static_cast<double>(side);
        }
        const double expected = varianceOf(channel) / static_cast<double>(side);

        EXPECT_NEAR(varianceOf(rows) / expected, 1, 0.3);
        EXPECT_NEAR(varianceOf(columns) / expected, 1, 0.3);
    }
}

// Of 131072 independent frequencies the strongest has about ln 131072 = 12 times the mean energy, and 25 times in one
// of a million maps. A pattern in rows, columns or repetitions has hundreds of times the mean.
TEST_F(NoiseMapTest, NoFrequencyDominatesTheSpectrum)
{
    for (const Channel &channel : m_channels) {
        const std::vector<double> all = energies(channel);

        const double strongest = *std::max_element(all.begin(), all.end());

        std::cout << "strongest wave: " << strongest << " times the mean energy\n";
        EXPECT_LT(strongest, 25);
    }
}

TEST_F(NoiseMapTest, SpectrumIsFlat)
{
    constexpr std::size_t bands = 8;
    for (const Channel &channel : m_channels) {
        const std::vector<double> all = energies(channel);
        std::array<double, bands> energy{};
        std::array<double, bands> count{};
        for (std::size_t i = 1; i < texels; ++i) {
            const std::size_t waveX = std::min(i % side, side - i % side);
            const std::size_t waveY = std::min(i / side, side - i / side);
            const std::size_t band = std::max(waveX, waveY) * bands / (side / 2 + 1);
            energy.at(band) += all[i];
            count.at(band) += 1;
        }

        // The narrowest band has 63 x 63 frequencies, half of them independent, so its error is 2 %.
        for (std::size_t band = 0; band < bands; ++band) {
            EXPECT_NEAR(energy.at(band) / count.at(band), 1, 0.1) << band;
        }
    }
}
