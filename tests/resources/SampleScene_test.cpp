// SPDX-License-Identifier: MIT
#include "resources/sample-picture/Scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

using namespace grisal::sample;

namespace
{

using Samples16 = std::vector<std::uint16_t>;

constexpr int width = 120;
constexpr int height = 80;

std::size_t at(int x, int y)
{
    return (static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)) * 3;
}

/// Whether some pixel above the ramp is lighter by `lead` in a channel than in both others.
bool hasSaturated(const Samples16 &samples, std::size_t channel, int lead)
{
    for (std::size_t i = 0; i < at(0, rampTop(height)); i += 3) {
        const int value = samples[i + channel];
        if (value - samples[i + (channel + 1) % 3] > lead && value - samples[i + (channel + 2) % 3] > lead) {
            return true;
        }
    }
    return false;
}

TEST(SampleSceneTest, IsDeterministic)
{
    EXPECT_EQ(paintScene(width, height), paintScene(width, height));
}

TEST(SampleSceneTest, FillsAnySize)
{
    EXPECT_EQ(paintScene(1, 1).size(), 3U);
    EXPECT_EQ(paintScene(3, 50).size(), 450U);
}

TEST(SampleSceneTest, HasAContinuousRampFromBlackToWhite)
{
    const Samples16 samples = paintScene(width, height);
    const int y = rampTop(height);
    for (int x = 0; x < width; ++x) {
        const double grey = 65535.0 * x / (width - 1);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            ASSERT_NEAR(samples[at(x, y) + channel], grey, 0.51) << "column " << x;
        }
    }
}

TEST(SampleSceneTest, HasARampOfElevenSteps)
{
    const Samples16 samples = paintScene(width, height);
    Samples16 levels;
    for (int x = 0; x < width; ++x) {
        levels.push_back(samples[at(x, height - 1)]);
    }
    EXPECT_TRUE(std::is_sorted(levels.begin(), levels.end()));
    EXPECT_EQ(levels.front(), 0);
    EXPECT_EQ(levels.back(), 65535);
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    EXPECT_EQ(levels.size(), 11U);
}

TEST(SampleSceneTest, HasSaturatedColours)
{
    const Samples16 samples = paintScene(width, height);
    constexpr int half = 32768;
    EXPECT_TRUE(hasSaturated(samples, 0, half));
    EXPECT_TRUE(hasSaturated(samples, 1, half / 2));
    EXPECT_TRUE(hasSaturated(samples, 2, half / 2));
}

TEST(SampleSceneTest, Rounds16BitSamplesToTheNearestByte)
{
    EXPECT_EQ(asBytes({0, 128, 129, 257, 65406, 65407, 65535}), (std::vector<std::uint8_t>{0, 0, 1, 1, 254, 255, 255}));
}

} // namespace
