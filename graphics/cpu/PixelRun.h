// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/cpu/StoredValues.h"
#include "graphics/cpu/ToneTables.h"
#include "graphics/look/VignetteParameters.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace grisal::graphics::cpu
{

/// A run of adjacent pixels of a row between the passes, as separate channels: short enough for the first-level cache,
/// and in the form that the compiler vectorises. The functions below are inline, so that they are compiled for the
/// instruction set of their caller. The result of a pass is rounded by the next one.
struct PixelRun {
    static constexpr std::size_t capacity = 512;
    using Channel = std::array<float, capacity>;

    std::size_t count = 0; ///< number of pixels
    Channel red;
    Channel green;
    Channel blue;
    Channel grainWeight;
    Channel noise; ///< factor of the grain's overlay
    Channel mask;  ///< darkening of the vignette
};

/// Reads the pixels, with `components` samples each, and applies mixer, curve and split tone.
template <typename Sample>
inline void mixAndTone(const Sample *pixels, std::size_t components, ColorRGB<float> weights,
                       const ToneTables<Sample> &tables, PixelRun &run)
{
    const float *uploaded = tables.uploaded.data();
    PixelRun::Channel greys;
    for (std::size_t x = 0; x < run.count; ++x, pixels += components) {
        greys[x] = uploaded[pixels[0]] * weights.r + uploaded[pixels[1]] * weights.g + uploaded[pixels[2]] * weights.b;
    }
    std::array<std::uint32_t, PixelRun::capacity> indices;
    for (std::size_t x = 0; x < run.count; ++x) {
        indices[x] = StoredValues<Sample>::indexOf(greys[x]);
    }
    const Tone *tones = tables.tones.data();
    for (std::size_t x = 0; x < run.count; ++x) {
        const Tone &tone = tones[indices[x]];
        run.red[x] = tone.red;
        run.green[x] = tone.green;
        run.blue[x] = tone.blue;
        run.grainWeight[x] = tone.grainWeight;
    }
}

/// Sets the noise from a row of texels; `columns` contains the index of the texel for each pixel.
inline void setNoise(const float *row, const int *columns, PixelRun &run)
{
    for (std::size_t x = 0; x < run.count; ++x) {
        run.noise[x] = row[columns[x]];
    }
}

/// Applies the grain to a channel.
inline void applyGrain(PixelRun::Channel &channel, const PixelRun &run)
{
    for (std::size_t x = 0; x < run.count; ++x) {
        const float base = channel[x];
        const float weight = run.grainWeight[x];
        const float i = base * white;
        const float tinted = (i * nearly255th) * (i + run.noise[x] * (white - i)) * nearly255th;
        channel[x] = base * (1.0F - weight) + tinted * weight;
    }
}

/// Sets the mask of the pixels from (x, y) on, for an image of width x height pixels.
inline void setMask(const VignetteParameters &vignette, float width, float height, int x, int y, PixelRun &run)
{
    const float py = static_cast<float>(y) + 0.5F;
    for (std::size_t i = 0; i < run.count; ++i) {
        const float px = static_cast<float>(x + static_cast<int>(i)) + 0.5F;
        run.mask[i] = vignetteValue(vignette, width, height, px, py);
    }
}

/// Applies the vignette to a channel.
template <typename Sample>
inline void applyMask(PixelRun::Channel &channel, const PixelRun &run)
{
    for (std::size_t x = 0; x < run.count; ++x) {
        const float mask = run.mask[x];
        const float i = StoredValues<Sample>::storedTimesWhite(channel[x]);
        channel[x] = ((1.0F - mask) * i + mask * (i * i * nearly255th)) * nearly255th;
    }
}

/// Converts a channel to samples.
template <typename Sample>
inline void convert(const PixelRun::Channel &channel, std::size_t count,
                    std::array<Sample, PixelRun::capacity> &samples)
{
    for (std::size_t x = 0; x < count; ++x) {
        samples[x] = StoredValues<Sample>::sampleOf(channel[x]);
    }
}

/// Writes the colours of the run; a fourth component of the pixels stays unchanged.
template <typename Sample>
inline void write(const PixelRun &run, Sample *pixels, std::size_t components)
{
    std::array<Sample, PixelRun::capacity> red;
    std::array<Sample, PixelRun::capacity> green;
    std::array<Sample, PixelRun::capacity> blue;
    convert(run.red, run.count, red);
    convert(run.green, run.count, green);
    convert(run.blue, run.count, blue);
    for (std::size_t x = 0; x < run.count; ++x, pixels += components) {
        pixels[0] = red[x];
        pixels[1] = green[x];
        pixels[2] = blue[x];
    }
}

} // namespace grisal::graphics::cpu
