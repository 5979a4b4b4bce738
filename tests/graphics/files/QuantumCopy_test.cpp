// SPDX-License-Identifier: MIT
#include "graphics/files/QuantumCopy.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace
{

using namespace grisal::graphics;

using Quanta = std::array<Magick::Quantum, 4>; ///< red, green, blue, opacity
using Bytes = std::vector<std::uint8_t>;
using Samples = std::vector<std::uint16_t>;

Magick::PixelPacket packet(const Quanta &quanta)
{
    Magick::PixelPacket pixel{};
    pixel.red = quanta[0];
    pixel.green = quanta[1];
    pixel.blue = quanta[2];
    pixel.opacity = quanta[3];
    return pixel;
}

Quanta quantaOf(const Magick::PixelPacket &pixel)
{
    return {pixel.red, pixel.green, pixel.blue, pixel.opacity};
}

const std::vector<Magick::PixelPacket> twoPixels{packet({0x12ff, 0xfe00, 0x00ff, 0x8143}),
                                                 packet({0xffff, 0x0100, 0x8080, 0x00ff})};

/// Values that differ from their neighbours.
template <typename Values>
Values mixed(std::size_t count)
{
    Values values(count);
    std::minstd_rand next;
    for (auto &value : values) {
        value = static_cast<typename Values::value_type>(next() >> 8);
    }
    return values;
}

std::vector<Magick::PixelPacket> mixedPixels(std::size_t count)
{
    const auto samples = mixed<Samples>(count * 4);
    std::vector<Magick::PixelPacket> pixels;
    for (std::size_t i = 0; i < samples.size(); i += 4) {
        pixels.push_back(packet({samples[i], samples[i + 1], samples[i + 2], samples[i + 3]}));
    }
    return pixels;
}

/// The number of pixels, and whether there is a fourth component. The large number is processed by several threads.
class QuantumCopy : public testing::TestWithParam<std::tuple<std::size_t, bool>>
{
protected:
    std::size_t count() const { return std::get<0>(GetParam()); }
    bool alpha() const { return std::get<1>(GetParam()); }
    std::size_t components() const { return alpha() ? 4 : 3; }

    /// Copies pixels out into a buffer with one extra value, which must not change, and returns the buffer.
    template <typename Values, typename Copy>
    Values copiedOut(const std::vector<Magick::PixelPacket> &pixels, Copy copy) const
    {
        constexpr typename Values::value_type guard = 77;
        Values values(count() * components() + 1, guard);
        copy(pixels.data(), count(), values.data(), alpha());
        EXPECT_EQ(values.back(), guard);
        values.pop_back();
        return values;
    }

    /// Copies values into pixels followed by an extra one, which must not change, and returns all components.
    template <typename Values, typename Copy>
    Samples copiedIn(const Values &values, Copy copy) const
    {
        const Quanta guard{1, 2, 3, 4};
        std::vector<Magick::PixelPacket> pixels(count() + 1, packet(guard));
        copy(values.data(), count(), pixels.data(), alpha());
        EXPECT_EQ(quantaOf(pixels.back()), guard);
        pixels.pop_back();
        Samples samples;
        for (const Magick::PixelPacket &pixel : pixels) {
            samples.insert(samples.end(), {pixel.red, pixel.green, pixel.blue, pixel.opacity});
        }
        return samples;
    }

    /// The results of `value(component, index of the pixel)` for all components.
    template <typename Values, typename Value>
    Values expected(std::size_t componentCount, Value value) const
    {
        Values values;
        for (std::size_t i = 0; i < count(); ++i) {
            for (std::size_t c = 0; c < componentCount; ++c) {
                values.push_back(static_cast<typename Values::value_type>(value(c, i)));
            }
        }
        return values;
    }
};

INSTANTIATE_TEST_SUITE_P(Pixels, QuantumCopy, testing::Combine(testing::Values(0, 1, 7, 350'001), testing::Bool()),
                         [](const auto &test) {
                             return std::to_string(std::get<0>(test.param)) +
                                    (std::get<1>(test.param) ? "WithAlpha" : "");
                         });

TEST_P(QuantumCopy, BytesOutAreHighBytesAndTheLowByteOfTheOpacity)
{
    const auto pixels = mixedPixels(count());
    const auto byte = [&](std::size_t c, std::size_t i) {
        const Quanta quanta = quantaOf(pixels[i]);
        return c < 3 ? quanta[c] >> 8 : quanta[c] & 0xff;
    };
    EXPECT_EQ(copiedOut<Bytes>(pixels, copySamples8Out), expected<Bytes>(components(), byte));
}

TEST_P(QuantumCopy, SamplesOutAreTheQuanta)
{
    const auto pixels = mixedPixels(count());
    const auto sample = [&](std::size_t c, std::size_t i) { return quantaOf(pixels[i])[c]; };
    EXPECT_EQ(copiedOut<Samples>(pixels, copySamples16Out), expected<Samples>(components(), sample));
}

TEST_P(QuantumCopy, BytesInAreTheHighBytesAndTheUnscaledOpacity)
{
    const auto bytes = mixed<Bytes>(count() * components());
    const auto quantum = [&](std::size_t c, std::size_t i) {
        const int byte = c < components() ? bytes[i * components() + c] : 255;
        return c < 3 ? byte << 8 : byte;
    };
    EXPECT_EQ(copiedIn(bytes, copySamples8In), expected<Samples>(4, quantum));
}

TEST_P(QuantumCopy, BytesAreSpreadWhileTheyAreCopiedIn)
{
    const auto bytes = mixed<Bytes>(count() * 3);
    const auto quantum = [&](std::size_t c, std::size_t i) { return c < 3 ? bytes[i * 3 + c] * 257 : 255; };
    const auto copy = [](const std::uint8_t *source, std::size_t pixelCount, Magick::PixelPacket *pixels,
                         bool /*alpha*/) { copySpreadSamples8In(source, pixelCount, pixels); };
    EXPECT_EQ(copiedIn(bytes, copy), expected<Samples>(4, quantum));
}

TEST_P(QuantumCopy, SamplesInAreTheQuanta)
{
    const auto samples = mixed<Samples>(count() * components());
    const auto quantum = [&](std::size_t c, std::size_t i) {
        return c < components() ? samples[i * components() + c] : 65535;
    };
    EXPECT_EQ(copiedIn(samples, copySamples16In), expected<Samples>(4, quantum));
}

TEST_P(QuantumCopy, RoundTripKeepsSamples)
{
    const auto samples = mixed<Samples>(count() * components());
    std::vector<Magick::PixelPacket> pixels(count());
    copySamples16In(samples.data(), count(), pixels.data(), alpha());
    EXPECT_EQ(copiedOut<Samples>(pixels, copySamples16Out), samples);
}

TEST_P(QuantumCopy, RoundTripKeepsBytes)
{
    const auto bytes = mixed<Bytes>(count() * components());
    std::vector<Magick::PixelPacket> pixels(count());
    copySamples8In(bytes.data(), count(), pixels.data(), alpha());
    EXPECT_EQ(copiedOut<Bytes>(pixels, copySamples8Out), bytes);
}

TEST(QuantumCopyTest, CopiesTwoPixelsOut)
{
    Bytes bytes(8);
    copySamples8Out(twoPixels.data(), 2, bytes.data(), true);
    EXPECT_EQ(bytes, (Bytes{0x12, 0xfe, 0x00, 0x43, 0xff, 0x01, 0x80, 0xff}));

    Samples samples(6);
    copySamples16Out(twoPixels.data(), 2, samples.data(), false);
    EXPECT_EQ(samples, (Samples{0x12ff, 0xfe00, 0x00ff, 0xffff, 0x0100, 0x8080}));
}

TEST(QuantumCopyTest, SpreadsOnlyTheHighBytesOfTheColours)
{
    std::vector<Magick::PixelPacket> pixels = twoPixels;
    spreadHighBytes(pixels.data(), 2);
    EXPECT_EQ(quantaOf(pixels[0]), (Quanta{0x1212, 0xfefe, 0x0000, 0x8143}));
    EXPECT_EQ(quantaOf(pixels[1]), (Quanta{0xffff, 0x0101, 0x8080, 0x00ff}));
}

TEST(QuantumCopyTest, SpreadsEveryByteToItsMultipleOf257)
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const auto high = static_cast<Magick::Quantum>(byte << 8);
        Magick::PixelPacket pixel = packet({high, high, high, 0});
        spreadHighBytes(&pixel, 1);
        const auto spread = static_cast<Magick::Quantum>(byte * 257);
        EXPECT_EQ(quantaOf(pixel), (Quanta{spread, spread, spread, 0})) << byte;
    }
}

TEST(QuantumCopyTest, SpreadsOnlyTheRequestedPixels)
{
    std::vector<Magick::PixelPacket> pixels = twoPixels;
    spreadHighBytes(pixels.data(), 1);
    EXPECT_EQ(quantaOf(pixels[1]), quantaOf(twoPixels[1]));
    spreadHighBytes(pixels.data(), 0);
    EXPECT_EQ(quantaOf(pixels[1]), quantaOf(twoPixels[1]));
}

} // namespace
