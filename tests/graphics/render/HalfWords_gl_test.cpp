// SPDX-License-Identifier: MIT
#include "graphics/render/HalfWords.h"

#include "graphics/gl/Framebuffers.h"
#include "tests/support/GlTest.h"

#include <vector>

namespace grisal::test
{

using graphics::halfOfWord;
using graphics::wordOfHalf;

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

/// What comes out as `to` of a target of halves that these went into as `from`.
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

class HalfWordsTest : public GlTest
{
};

TEST_F(HalfWordsTest, TheEndsAndTheMiddle)
{
    EXPECT_EQ(wordOfHalf(0x0000), 0);
    EXPECT_EQ(wordOfHalf(0x3c00), 65535);
    EXPECT_EQ(wordOfHalf(0x3800), 32768) << "32767.5 goes to the even one";
    EXPECT_EQ(wordOfHalf(0x3c01), 65535) << "more than 1";
    EXPECT_EQ(wordOfHalf(0x7c00), 65535) << "infinite";
    EXPECT_EQ(wordOfHalf(0xb800), 0) << "less than 0";
    EXPECT_EQ(wordOfHalf(0x7e00), 0) << "not a number";
}

// The driver's own conversion is the slow way to the same words: every half goes both ways.
TEST_F(HalfWordsTest, AreThoseOfTheDriver)
{
    const std::vector<std::uint16_t> halves = everyValue();
    const std::vector<std::uint16_t> expected = throughTheDriver(halves, GL_HALF_FLOAT, GL_UNSIGNED_SHORT);

    std::vector<std::uint16_t> words(halves.size());
    graphics::wordsOfHalves(halves.data(), halves.size(), words.data());
    for (std::size_t i = 0; i < words.size(); i += 3) {
        ASSERT_EQ(words[i], expected[i]) << std::hex << "half " << halves[i];
    }
}

TEST_F(HalfWordsTest, TheHalvesOfSomeWords)
{
    EXPECT_EQ(halfOfWord(0), 0x0000);
    EXPECT_EQ(halfOfWord(65535), 0x3c00);
    EXPECT_EQ(halfOfWord(1), 0x0100) << "too small for a leading one";
    EXPECT_EQ(halfOfWord(4), 0x0400) << "the first that has one";
    EXPECT_EQ(halfOfWord(65534), 0x3c00) << "nearer to 1 than to the half before it";
    EXPECT_EQ(halfOfWord(32768), 0x3800);
}

TEST_F(HalfWordsTest, EveryWordBecomesTheHalfThatTheDriverMakesOfIt)
{
    const std::vector<std::uint16_t> words = everyValue();
    const std::vector<std::uint16_t> expected = throughTheDriver(words, GL_UNSIGNED_SHORT, GL_HALF_FLOAT);

    std::vector<std::uint16_t> halves(words.size());
    graphics::halvesOfWords(words.data(), words.size(), halves.data());
    for (std::size_t i = 0; i < halves.size(); i += 3) {
        // Another driver may round another way; what is uploaded is the same everywhere.
        ASSERT_NEAR(halves[i], expected[i], isLlvmpipe() ? 0 : 1) << "word " << words[i];
    }
}

} // namespace grisal::test
