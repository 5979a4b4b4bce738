// SPDX-License-Identifier: MIT
#include "graphics/render/VignetteMask.h"

#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferenceFilters.h"

namespace grisal::test
{

namespace
{

using graphics::TileArea;
using graphics::VignetteMask;
using graphics::VignetteParameters;

constexpr int width = 516;
constexpr int height = 124;
constexpr std::uint32_t roomForIt = 1024;
constexpr std::uint32_t noRoomForIt = 515;

const VignetteParameters offCentre{{30, 80, 0}, 90, 25};

class VignetteMaskTest : public GlTest
{
};

std::vector<float> pieceOf(const VignetteMask &mask, const TileArea &area)
{
    const graphics::Texture texture = mask.piece(area);
    std::vector<float> values(area.width * area.height);
    glBindTexture(GL_TEXTURE_2D, texture.name());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RED, GL_FLOAT, values.data());
    glBindTexture(GL_TEXTURE_2D, 0);
    return values;
}

/// The whole mask.
std::vector<float> makeVignetteMask(const VignetteParameters &parameters, std::uint32_t columns, std::uint32_t rows,
                                    std::uint32_t largestSide)
{
    return pieceOf(VignetteMask(parameters, columns, rows, largestSide), {0, 0, columns, rows});
}

FloatPixels asPicture(std::vector<float> mask)
{
    return {width, height, 1, std::move(mask)};
}

FloatPixels expectedMask()
{
    FloatPixels mask(width, height, 1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            mask.at(x, y, 0) = reference::vignetteAt({30, 80, 90, 25}, width, height, x, y);
        }
    }
    return mask;
}

/// The largest difference between two masks, relative to the second.
double relativeDifference(const std::vector<float> &actual, const std::vector<float> &expected)
{
    double worst = actual.size() == expected.size() ? 0 : 1;
    for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i) {
        worst = std::max(worst, std::abs(double{actual[i]} - expected[i]) / expected[i]);
    }
    return worst;
}

} // namespace

TEST_F(VignetteMaskTest, TheGpusMaskFollowsTheFormulaForItsOwnSize)
{
    const std::vector<float> mask = makeVignetteMask(offCentre, width, height, roomForIt);

    EXPECT_TRUE(picturesNear("mask-gpu", asPicture(mask), expectedMask(), {1e-5, 0}));
}

TEST_F(VignetteMaskTest, TheComputedMaskFollowsTheFormulaForItsOwnSize)
{
    const std::vector<float> mask = makeVignetteMask(offCentre, width, height, noRoomForIt);

    EXPECT_TRUE(picturesNear("mask-cpu", asPicture(mask), expectedMask(), {1e-5, 0}));
}

TEST_F(VignetteMaskTest, BothWaysAgree)
{
    const double apart = relativeDifference(makeVignetteMask(offCentre, width, height, roomForIt),
                                            makeVignetteMask(offCentre, width, height, noRoomForIt));

    std::cout << "masks: largest relative difference " << apart << "\n";
    EXPECT_LE(apart, 1e-4);
}

TEST_F(VignetteMaskTest, AMaskThatFitsIsDrawnWithoutAWord)
{
    const LogCapture log;

    makeVignetteMask(offCentre, width, height, width);

    EXPECT_EQ(log.debugs() + log.warnings(), QStringList());
}

TEST_F(VignetteMaskTest, AMaskTooWideForTheGpuIsComputedAndTheLogSaysSo)
{
    const LogCapture log;

    makeVignetteMask(offCentre, width, height, width - 1);

    EXPECT_EQ(log.debugs(),
              QStringList{"(INFO) Vignette mask computed without the GPU, its largest texture side is 515"});
}

TEST_F(VignetteMaskTest, AMaskTooHighForTheGpuIsComputedAndTheLogSaysSo)
{
    const LogCapture log;

    makeVignetteMask(offCentre, 20, 40, 39);

    EXPECT_EQ(log.debugs(),
              QStringList{"(INFO) Vignette mask computed without the GPU, its largest texture side is 39"});
}

TEST_F(VignetteMaskTest, WithoutStrengthBothWaysAreEmpty)
{
    const VignetteParameters nothing{{30, 80, 0}, 0, 25};

    EXPECT_EQ(makeVignetteMask(nothing, 5, 3, 16), std::vector<float>(15, 0));
    EXPECT_EQ(makeVignetteMask(nothing, 5, 3, 2), std::vector<float>(15, 0));
}

TEST_F(VignetteMaskTest, OddRowsComeBackWhole)
{
    EXPECT_LE(relativeDifference(makeVignetteMask(offCentre, 513, 3, 1024), makeVignetteMask(offCentre, 513, 3, 1)),
              1e-4);
}

// Whether it is drawn or computed, a piece is what the whole mask has at its place.
TEST_F(VignetteMaskTest, APieceIsAPartOfTheWhole)
{
    for (const std::uint32_t largestSide : {roomForIt, noRoomForIt}) {
        const VignetteMask mask(offCentre, width, height, largestSide);
        const std::vector<float> whole = pieceOf(mask, {0, 0, width, height});
        const std::vector<float> piece = pieceOf(mask, {387, 31, 129, 31});
        for (std::size_t i = 0; i < piece.size(); ++i) {
            ASSERT_EQ(piece[i], whole[(31 + i / 129) * width + 387 + i % 129]) << i;
        }
    }
}

TEST_F(VignetteMaskTest, LeavesNothingBound)
{
    makeVignetteMask(offCentre, width, height, roomForIt);

    EXPECT_EQ(activeUnit(), 0);
    expectPassIsOver();
}

} // namespace grisal::test
