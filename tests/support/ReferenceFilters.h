// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pictures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Independent CPU implementations of the filters for one pixel in float arithmetic, as the reference for the shaders.
/// They call no code under test and allocate no memory per pixel. Colours and greys are 0..1.
namespace grisal::test::reference
{

struct Rgb {
    float r = 0;
    float g = 0;
    float b = 0;

    friend Rgb operator+(Rgb p, Rgb q) { return {p.r + q.r, p.g + q.g, p.b + q.b}; }
    friend Rgb operator*(Rgb p, float f) { return {p.r * f, p.g * f, p.b * f}; }
};

constexpr float white = 255.0F;
constexpr float nearly255th = 0.0039F; ///< the filters use this for 1/255

/// The value that a shader reads from an 8-bit texture.
inline float fromByte(std::uint8_t byte)
{
    return static_cast<float>(byte) / white;
}

/// The byte that an 8-bit render target stores: clamped, rounded to nearest.
inline std::uint8_t toByte(float value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 0.0F, 1.0F) * white + 0.5F);
}

inline Rgb colourAt(const FloatPixels &picture, int x, int y)
{
    return {picture.at(x, y, 0), picture.at(x, y, 1), picture.at(x, y, 2)};
}

inline Rgb colourAt(const BytePixels &picture, int x, int y)
{
    return {fromByte(picture.at(x, y, 0)), fromByte(picture.at(x, y, 1)), fromByte(picture.at(x, y, 2))};
}

/// Weighted sum of the channels.
inline Rgb mixer(Rgb c, Rgb weights)
{
    const float grey = c.r * weights.r + c.g * weights.g + c.b * weights.b;
    return {grey, grey, grey};
}

/// The sample at a coordinate 0..1; other coordinates repeat, so that 1 is the first sample.
inline float repeatedSample(std::span<const float> samples, float coordinate)
{
    const float inside = coordinate - std::floor(coordinate);
    const auto index = static_cast<std::size_t>(inside * static_cast<float>(samples.size()));
    return samples[std::min(index, samples.size() - 1)];
}

/// The tone curve applied to the red component.
inline Rgb curve(Rgb c, std::span<const float> samples)
{
    const float value = repeatedSample(samples, std::min(0.999F, std::max(0.0F, c.r)));
    return {value, value, value};
}

/// The soft-light overlay of split tone and grain, one channel.
inline float tinted(float base, float tint)
{
    const float i = base * white;
    const float m = tint * white;
    return (i * nearly255th) * (i + (m * 2.0F * nearly255th) * (white - i)) * nearly255th;
}

inline Rgb tinted(Rgb base, Rgb tint)
{
    return {tinted(base.r, tint.r), tinted(base.g, tint.g), tinted(base.b, tint.b)};
}

/// `first` tints the highlights, `second` the shadows.
inline Rgb splitTone(Rgb c, float weight, Rgb first, Rgb second)
{
    const float highlights = c.r * weight;
    const float rest = 1.0F - highlights;
    const float shadows = rest * rest;
    const float original = 1.0F - highlights - shadows;
    return tinted(c, first) * highlights + tinted(c, second) * shadows + Rgb{c.r, c.r, c.r} * original;
}

/// The darkening overlay of vignette and mask, one channel.
inline float darkened(float base, float mask)
{
    const float i = base * white;
    return ((1.0F - mask) * i + mask * (i * i * nearly255th)) * nearly255th;
}

inline Rgb darkened(Rgb c, float mask)
{
    return {darkened(c.r, mask), darkened(c.g, mask), darkened(c.b, mask)};
}

/// Values in percent: centre of width and height, radius of the mean of both.
struct Vignette {
    float x = 50;
    float y = 50;
    float strength = 50;
    float radius = 50;
};

/// How much the vignette of an image of width x height darkens the pixel (x, y).
inline float vignetteAt(const Vignette &vignette, float width, float height, int x, int y)
{
    if (vignette.strength <= 0) {
        return 0;
    }
    const float dx = width * 0.01F * vignette.x - (static_cast<float>(x) + 0.5F);
    const float dy = height * 0.01F * vignette.y - (static_cast<float>(y) + 0.5F);
    const float reach = vignette.radius * 0.01F * ((width + height) * 0.5F);
    return vignette.strength * 0.01F * std::sqrt(dx * dx + dy * dy) / reach;
}

/// The colour of the pixel (x, y) with a vignette; unchanged for a strength of 0 or less.
inline Rgb vignetted(Rgb c, const Vignette &vignette, float width, float height, int x, int y)
{
    return vignette.strength > 0 ? darkened(c, vignetteAt(vignette, width, height, x, y)) : c;
}

/// The index at position i of a sequence of n that is mirrored repeatedly at both ends.
inline int mirrored(int i, int n)
{
    const int period = 2 * n;
    const int inPeriod = ((i % period) + period) % period;
    return inPeriod < n ? inPeriod : period - 1 - inPeriod;
}

/// Weights of the taps at -h..h, h = 2 * ceil(radius), for a radius above 0. Their sum is 1.
inline std::vector<float> blurWeights(float radius)
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

/// One pass of the blur, along x or along y. A copy if there are no weights.
inline FloatPixels blurredAlong(const FloatPixels &picture, const std::vector<float> &weights, bool alongX)
{
    if (weights.empty()) {
        return picture;
    }
    const int half = static_cast<int>(weights.size()) / 2;
    FloatPixels result(picture.width, picture.height, picture.components);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            for (int c = 0; c < picture.components; ++c) {
                float sum = 0;
                for (int tap = -half; tap <= half; ++tap) {
                    const float value = alongX ? picture.at(mirrored(x + tap, picture.width), y, c)
                                               : picture.at(x, mirrored(y + tap, picture.height), c);
                    sum += weights[static_cast<std::size_t>(tap + half)] * value;
                }
                result.at(x, y, c) = sum;
            }
        }
    }
    return result;
}

constexpr int noiseSide = 512;

/// The row or column of the noise map for row or column p of an image.
inline int noiseTexel(int p)
{
    const float texel = (static_cast<float>(p) + 0.5F) * 0.0019F * static_cast<float>(noiseSide);
    return mirrored(static_cast<int>(std::floor(texel)), noiseSide);
}

/// Whether column or row p reads the noise exactly between two texels, because (p + 0.5) * 0.9728 is an integer: 312,
/// 937, ... There the last bit of the OpenGL driver's arithmetic decides which texel is read.
inline bool isBetweenNoiseTexels(int p)
{
    return (2 * p + 1) % 625 == 0;
}

/// The noise 0..1 for the pixel (x, y), from a noise map of noiseSide x noiseSide pixels.
inline float noiseAt(const BytePixels &noise, int x, int y)
{
    return fromByte(noise.at(noiseTexel(x), noiseTexel(y), 0));
}

/// The pixel with `noise` 0..1 applied, with the weight for its red component.
inline Rgb grain(Rgb c, float noise, std::span<const float> weights)
{
    const float weight = repeatedSample(weights, c.r);
    return c * (1.0F - weight) + tinted(c, Rgb{noise, noise, noise}) * weight;
}

} // namespace grisal::test::reference
