// SPDX-License-Identifier: MIT
#include "graphics/cpu/GrainNoise.h"

#include "graphics/cpu/StoredValues.h"
#include "graphics/cpu/ToneTables.h"
#include "graphics/look/NoiseSamples.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace grisal::graphics::cpu
{

namespace
{

using Byte = StoredValues<std::uint8_t>;
using Channel = std::vector<std::uint8_t>; // of noiseMapSide x noiseMapSide texels

constexpr std::size_t side = noiseMapSide;

/// The index at position i of a sequence of noiseMapSide elements that is mirrored repeatedly at both ends.
int mirrored(int i)
{
    constexpr int period = 2 * noiseMapSide;
    const int inPeriod = ((i % period) + period) % period;
    return inPeriod < noiseMapSide ? inPeriod : period - 1 - inPeriod;
}

Channel redChannel()
{
    const std::vector<std::uint8_t> samples = noiseMapSamples();
    Channel red(side * side);
    for (std::size_t i = 0; i < red.size(); ++i) {
        red[i] = samples[i * noiseMapChannels];
    }
    return red;
}

/// The weights of the taps at -h..h, h = 2 * ceil(radius). Their sum is 1.
std::vector<float> tapWeights(float radius)
{
    const int half = 2 * static_cast<int>(std::ceil(radius));
    std::vector<float> weights;
    float sum = 0;
    for (int x = -half; x <= half; ++x) {
        weights.push_back(std::exp(-static_cast<float>(x * x) / (radius * 1.141F)));
        sum += weights.back();
    }
    for (float &weight : weights) {
        weight /= sum;
    }
    return weights;
}

/// Blurs the rows and exchanges rows and columns, so that the same function blurs the columns next.
Channel blurredAndTransposed(const Channel &noise, const std::vector<float> &weights)
{
    const auto half = static_cast<int>(weights.size() / 2);
    Channel result(noise.size());
    std::vector<float> row(side + weights.size() - 1);
    std::vector<float> sums(side);
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = Byte::valueOf(noise[y * side + static_cast<std::size_t>(mirrored(static_cast<int>(i) - half))]);
        }
        std::fill(sums.begin(), sums.end(), 0.0F);
        for (std::size_t tap = 0; tap < weights.size(); ++tap) {
            for (std::size_t x = 0; x < side; ++x) {
                sums[x] += weights[tap] * row[x + tap];
            }
        }
        for (std::size_t x = 0; x < side; ++x) {
            result[x * side + y] = Byte::sampleOf(sums[x]);
        }
    }
    return result;
}

} // namespace

GrainNoise::GrainNoise(float radius)
{
    Channel noise = redChannel();
    if (radius > 0) {
        const std::vector<float> weights = tapWeights(radius);
        noise = blurredAndTransposed(blurredAndTransposed(noise, weights), weights);
    }
    m_factors.reserve(noise.size());
    for (const std::uint8_t texel : noise) {
        m_factors.push_back(Byte::valueOf(texel) * white * 2.0F * nearly255th);
    }
}

int GrainNoise::texelFor(int p)
{
    return mirrored(
        static_cast<int>(std::floor((static_cast<float>(p) + 0.5F) * 0.0019F * static_cast<float>(noiseMapSide))));
}

const float *GrainNoise::row(int texel) const
{
    return m_factors.data() + static_cast<std::size_t>(texel) * side;
}

} // namespace grisal::graphics::cpu
