// SPDX-License-Identifier: MIT
#include "graphics/image/HalfFloats.h"

#include "graphics/gl/Framebuffers.h"
#include "tests/support/GlTest.h"

#include <cstring>
#include <vector>

namespace grisal::test
{

constexpr int side = 256;

/// All values of 16 bits, each as red, green and blue of a pixel.
std::vector<std::uint16_t> everyValue()
{
    std::vector<std::uint16_t> values(std::size_t{side} * side * 3);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = static_cast<std::uint16_t>(i / 3);
    }
    return values;
}

/// The values after an upload as `from` into a target of half floats and a read-back as `to`.
std::vector<std::uint16_t> throughTheDriver(const std::vector<std::uint16_t> &values, GLenum from, GLenum to)
{
    const graphics::RenderTarget target(side, side, GL_RGB, GL_RGB16F, from);
    glBindTexture(GL_TEXTURE_2D, target.record().texture);
    glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, side, side, GL_RGB, from, values.data());
    glBindTexture(GL_TEXTURE_2D, 0);
    std::vector<std::uint16_t> result(values.size());
    readPixels(target.record(), side, side, GL_RGB, to, result.data());
    return result;
}

class HalfFloatsTest : public GlTest
{
};

std::uint16_t sampleOf(std::uint16_t bits)
{
    std::uint16_t sample = 0;
    graphics::convertFromHalfFloats(reinterpret_cast<const qfloat16 *>(&bits), 1, &sample);
    return sample;
}

std::uint16_t halfFloatOf(std::uint16_t sample)
{
    qfloat16 halfFloat;
    graphics::convertToHalfFloats(&sample, 1, &halfFloat);
    std::uint16_t bits = 0;
    std::memcpy(&bits, &halfFloat, sizeof bits);
    return bits;
}

TEST_F(HalfFloatsTest, ConvertsSelectedHalfFloatsToSamples)
{
    EXPECT_EQ(sampleOf(0x0000), 0);
    EXPECT_EQ(sampleOf(0x3c00), 65535);
    EXPECT_EQ(sampleOf(0x3800), 32768) << "32767.5 goes to the even one";
    EXPECT_EQ(sampleOf(0x3c01), 65535) << "more than 1";
    EXPECT_EQ(sampleOf(0x7c00), 65535) << "infinite";
    EXPECT_EQ(sampleOf(0xb800), 0) << "less than 0";
    EXPECT_EQ(sampleOf(0x7e00), 0) << "not a number";
}

TEST_F(HalfFloatsTest, ConvertsEveryHalfFloatLikeTheDriver)
{
    const std::vector<std::uint16_t> halfFloats = everyValue();
    const std::vector<std::uint16_t> expected = throughTheDriver(halfFloats, GL_HALF_FLOAT, GL_UNSIGNED_SHORT);

    std::vector<std::uint16_t> samples(halfFloats.size());
    graphics::convertFromHalfFloats(reinterpret_cast<const qfloat16 *>(halfFloats.data()), halfFloats.size(),
                                    samples.data());
    for (std::size_t i = 0; i < samples.size(); i += 3) {
        ASSERT_EQ(samples[i], expected[i]) << std::hex << "half float " << halfFloats[i];
    }
}

TEST_F(HalfFloatsTest, ConvertsSelectedSamplesToHalfFloats)
{
    EXPECT_EQ(halfFloatOf(0), 0x0000);
    EXPECT_EQ(halfFloatOf(65535), 0x3c00);
    EXPECT_EQ(halfFloatOf(1), 0x0100) << "too small for a leading one";
    EXPECT_EQ(halfFloatOf(4), 0x0400) << "the first that has one";
    EXPECT_EQ(halfFloatOf(65534), 0x3c00) << "nearer to 1 than to the half before it";
    EXPECT_EQ(halfFloatOf(32768), 0x3800);
}

TEST_F(HalfFloatsTest, ConvertsEverySampleLikeTheDriver)
{
    const std::vector<std::uint16_t> samples = everyValue();
    const std::vector<std::uint16_t> expected = throughTheDriver(samples, GL_UNSIGNED_SHORT, GL_HALF_FLOAT);

    std::vector<std::uint16_t> halfFloats(samples.size());
    graphics::convertToHalfFloats(samples.data(), samples.size(), reinterpret_cast<qfloat16 *>(halfFloats.data()));
    for (std::size_t i = 0; i < halfFloats.size(); i += 3) {
        // Other OpenGL drivers may round differently at the upload; the conversion is the same for all drivers.
        ASSERT_NEAR(halfFloats[i], expected[i], isLlvmpipe() ? 0 : 1) << "sample " << samples[i];
    }
}

} // namespace grisal::test
