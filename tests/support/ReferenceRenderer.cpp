// SPDX-License-Identifier: MIT
#include "tests/support/ReferenceRenderer.h"

#include "tests/support/HalfFloats.h"
#include "tests/support/ReferencePictures.h"

#include <QFile>

#include <stdexcept>

namespace grisal::test::reference
{

namespace
{

Rgb rgb(const graphics::ColorRGB<float> &colour)
{
    return {colour.r, colour.g, colour.b};
}

std::span<const float> samples(const QVector<float> &values)
{
    return {values.data(), static_cast<std::size_t>(values.size())};
}

Vignette vignetteOf(const graphics::FilterParameters &p)
{
    return {p.get<graphics::VignetteFilter>().shape.center.x, p.get<graphics::VignetteFilter>().shape.center.y,
            p.get<graphics::VignetteFilter>().shape.strength, p.get<graphics::VignetteFilter>().shape.radius};
}

Rgb splitToned(Rgb c, const graphics::FilterParameters &p)
{
    return splitTone(c, p.get<graphics::HalfToneFilter>().weight, rgb(p.get<graphics::HalfToneFilter>().highlights),
                     rgb(p.get<graphics::HalfToneFilter>().shadows));
}

float storedByte(float value)
{
    return fromByte(toByte(value));
}

template <float (*store)(float)>
Rgb stored(Rgb c)
{
    return {store(c.r), store(c.g), store(c.b)};
}

/// Padded length and tile length of one side of an image.
struct Side {
    int padded;
    int tile;
};

Side sideOf(int size)
{
    int padded = size;
    while (padded % 4 != 0) {
        padded += padded % 4;
    }
    return {padded, size > 2048 ? padded / 4 : padded};
}

/// The passes of a final render for one pixel, given the colour as uploaded; `store` converts a value as a render
/// target does.
template <float (*store)(float)>
class FilePasses
{
public:
    FilePasses(int width, int height, const Look &look, const BytePixels &noise)
        : m_horizontal(sideOf(width)), m_vertical(sideOf(height)), m_look(look), m_noise(noise)
    {
    }

    Rgb operator()(int x, int y, Rgb colour) const
    {
        const graphics::FilterParameters &p = m_look.parameters;
        Rgb c = stored<store>(mixer(colour, rgb(p.get<graphics::MixerFilter>().weights)));
        if (m_look.curve) {
            c = stored<store>(curve(c, samples(p.get<graphics::CurveFilter>().curve)));
        }
        if (m_look.splitTone) {
            c = stored<store>(splitToned(c, p));
        }
        if (m_look.grain) {
            const float noise = noiseAt(m_noise, x % m_horizontal.tile, y % m_vertical.tile);
            c = stored<store>(grain(c, noise, samples(p.get<graphics::GrainFilter>().weights)));
        }
        if (m_look.vignette) {
            const float mask = vignetteAt(vignetteOf(p), static_cast<float>(m_horizontal.padded),
                                          static_cast<float>(m_vertical.padded), x, y);
            c = stored<store>(darkened(c, mask));
        }
        return c;
    }

private:
    Side m_horizontal;
    Side m_vertical;
    const Look &m_look;
    const BytePixels &m_noise;
};

std::uint16_t toSample16(float value)
{
    return static_cast<std::uint16_t>(std::lround(std::clamp(value, 0.0F, 1.0F) * 65535.0F));
}

float fromSample16(std::uint16_t sample)
{
    return nearestHalfFloat(static_cast<float>(sample) / 65535.0F);
}

} // namespace

BytePixels noiseMap()
{
    constexpr int side = 512;
    QFile file(QStringLiteral(":/Icons/Icons/noiseMap_512x512x3.raw"));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("the noise map is missing");
    }
    const QByteArray bytes = file.readAll();
    return {side, side, 3, {bytes.begin(), bytes.end()}};
}

BytePixels blurredNoise(const BytePixels &noise, float radius)
{
    const std::vector<float> weights = radius > 0 ? blurWeights(radius) : std::vector<float>();
    const BytePixels alongX = asBytes(blurredAlong(asFloats(noise), weights, true));
    return asBytes(blurredAlong(asFloats(alongX), weights, false));
}

BytePixels previewOf(const BytePixels &picture, const Look &look, const BytePixels &noise)
{
    const graphics::FilterParameters &p = look.parameters;
    return asBytes(eachPixel(picture, [&](int x, int y, Rgb colour) {
        Rgb c = stored<storedByte>(mixer(colour, rgb(p.get<graphics::MixerFilter>().weights)));
        if (look.mixer) {
            c = stored<storedByte>(mixer(c, rgb(p.get<graphics::MixerFilter>().weights)));
        }
        if (look.curve) {
            c = stored<storedByte>(curve(c, samples(p.get<graphics::CurveFilter>().curve)));
        }
        if (look.grain) {
            c = stored<storedByte>(grain(c, noiseAt(noise, x, y), samples(p.get<graphics::GrainFilter>().weights)));
        }
        if (look.splitTone) {
            c = stored<storedByte>(splitToned(c, p));
        }
        if (look.vignette) {
            c = stored<storedByte>(vignetted(c, vignetteOf(p), static_cast<float>(picture.width),
                                             static_cast<float>(picture.height), x, y));
        }
        return c;
    }));
}

BytePixels fileOf(const BytePixels &picture, const Look &look, const BytePixels &noise)
{
    return asBytes(eachPixel(picture, FilePasses<storedByte>(picture.width, picture.height, look, noise)));
}

Samples16Image fileOf(const Samples16Image &picture, const Look &look, const BytePixels &noise)
{
    const FilePasses<cutToHalfFloat> passes(picture.width, picture.height, look, noise);
    Samples16Image result(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const Rgb colour = passes(x, y,
                                      {fromSample16(picture.at(x, y, 0)), fromSample16(picture.at(x, y, 1)),
                                       fromSample16(picture.at(x, y, 2))});
            result.at(x, y, 0) = toSample16(colour.r);
            result.at(x, y, 1) = toSample16(colour.g);
            result.at(x, y, 2) = toSample16(colour.b);
        }
    }
    return result;
}

template <typename T>
void leaveOutNoiseBoundaries(Pixels<T> &actual, const Pixels<T> &expected, bool tiled)
{
    const int tileWidth = tiled ? sideOf(actual.width).tile : actual.width;
    const int tileHeight = tiled ? sideOf(actual.height).tile : actual.height;
    for (int y = 0; y < actual.height; ++y) {
        const bool wholeRow = isBetweenNoiseTexels(y % tileHeight);
        for (int x = 0; x < actual.width; ++x) {
            if (wholeRow || isBetweenNoiseTexels(x % tileWidth)) {
                for (int c = 0; c < actual.components; ++c) {
                    actual.at(x, y, c) = expected.at(x, y, c);
                }
            }
        }
    }
}

template void leaveOutNoiseBoundaries(BytePixels &, const BytePixels &, bool);
template void leaveOutNoiseBoundaries(Samples16Image &, const Samples16Image &, bool);

} // namespace grisal::test::reference
