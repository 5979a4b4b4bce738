// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteMask.h"

#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/render/FinalRender.h"
#include "tests/support/GlState.h"
#include "tests/support/GlTest.h"
#include "tests/support/Images.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PictureCompare.h"
#include "tests/support/ReferenceFilters.h"

#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace
{

int masks = 0;

} // namespace

/// Replaces the function of the OpenGL driver and counts the textures of masks, which are the only ones of this format.
extern "C" void GLAPIENTRY glTexImage2D(GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height,
                                        GLint border, GLenum format, GLenum type, const void *pixels)
{
    static auto *const real = reinterpret_cast<decltype(&glTexImage2D)>(dlsym(RTLD_NEXT, "glTexImage2D"));
    masks += internalFormat == GL_R32F ? 1 : 0;
    real(target, level, internalFormat, width, height, border, format, type, pixels);
}

namespace grisal::test
{

namespace
{

using graphics::TileArea;
using graphics::VignetteMask;
using graphics::VignetteParameters;

constexpr int width = 516;
constexpr int height = 124;
constexpr std::uint32_t sufficientLimit = 1024;
constexpr std::uint32_t insufficientLimit = 515;

const VignetteParameters centred{{50, 50, 0}, 50, 50};
const VignetteParameters offCentre{{30, 80, 0}, 90, 25};

class VignetteMaskTest : public GlTest
{
};

/// A mask whose sides are multiples of 4.
struct Case {
    const char *name;
    std::uint32_t width;
    std::uint32_t height;
    VignetteParameters vignette;

    friend void PrintTo(const Case &mask, std::ostream *stream) { *stream << mask.name; }
};

class DrawnPieces : public GlTest, public testing::WithParamInterface<Case>
{
};

/// The differences between pieces and the whole.
struct Apart {
    double largest = 0;          ///< largest difference of two values
    int mostLevels = 0;          ///< the same in levels of 1/255, both values rounded
    std::size_t otherLevels = 0; ///< pixels of another level
    std::size_t pixels = 0;      ///< pixels compared

    void add(const std::vector<float> &piece, const TileArea &area, const std::vector<float> &whole,
             std::size_t rowLength)
    {
        for (std::size_t i = 0; i < piece.size(); ++i, ++pixels) {
            const float expected = whole[(area.y + i / area.width) * rowLength + area.x + i % area.width];
            largest = std::max(largest, std::abs(double{piece[i]} - expected));
            const int levels = std::abs(levelOf(piece[i]) - levelOf(expected));
            mostLevels = std::max(mostLevels, levels);
            otherLevels += levels != 0 ? 1 : 0;
        }
    }

    static int levelOf(float value) { return static_cast<int>(std::lround(value * 255)); }
};

std::vector<float> pieceOf(VignetteMask &mask, const TileArea &area)
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
    VignetteMask mask(parameters, columns, rows, largestSide);
    return pieceOf(mask, {0, 0, columns, rows});
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

TEST_F(VignetteMaskTest, GpuMaskFollowsTheFormulaForItsSize)
{
    const std::vector<float> mask = makeVignetteMask(offCentre, width, height, sufficientLimit);

    EXPECT_TRUE(picturesNear("mask-gpu", asPicture(mask), expectedMask(), {1e-5, 0}));
}

TEST_F(VignetteMaskTest, CpuMaskFollowsTheFormulaForItsSize)
{
    const std::vector<float> mask = makeVignetteMask(offCentre, width, height, insufficientLimit);

    EXPECT_TRUE(picturesNear("mask-cpu", asPicture(mask), expectedMask(), {1e-5, 0}));
}

TEST_F(VignetteMaskTest, GpuAndCpuMasksAgree)
{
    const double apart = relativeDifference(makeVignetteMask(offCentre, width, height, sufficientLimit),
                                            makeVignetteMask(offCentre, width, height, insufficientLimit));

    std::cout << "masks: largest relative difference " << apart << "\n";
    EXPECT_LE(apart, 1e-4);
}

TEST_F(VignetteMaskTest, MaskWithinTheSizeLimitIsDrawnWithoutLogging)
{
    const LogCapture log;

    makeVignetteMask(offCentre, width, height, width);

    EXPECT_EQ(log.debugs() + log.warnings(), QStringList());
}

TEST_F(VignetteMaskTest, MaskTooWideForTheGpuIsComputedAndLogged)
{
    const LogCapture log;

    makeVignetteMask(offCentre, width, height, width - 1);

    EXPECT_EQ(log.debugs(),
              QStringList{"(INFO) Vignette mask computed without the GPU, its largest texture side is 515"});
}

TEST_F(VignetteMaskTest, MaskTooHighForTheGpuIsComputedAndLogged)
{
    const LogCapture log;

    makeVignetteMask(offCentre, 20, 40, 39);

    EXPECT_EQ(log.debugs(),
              QStringList{"(INFO) Vignette mask computed without the GPU, its largest texture side is 39"});
}

TEST_F(VignetteMaskTest, GpuAndCpuMasksAreZeroWithoutStrength)
{
    const VignetteParameters nothing{{30, 80, 0}, 0, 25};

    EXPECT_EQ(makeVignetteMask(nothing, 5, 3, 16), std::vector<float>(15, 0));
    EXPECT_EQ(makeVignetteMask(nothing, 5, 3, 2), std::vector<float>(15, 0));
}

TEST_F(VignetteMaskTest, UnalignedRowsAreReadCompletely)
{
    EXPECT_LE(relativeDifference(makeVignetteMask(offCentre, 513, 3, 1024), makeVignetteMask(offCentre, 513, 3, 1)),
              1e-4);
}

TEST_F(VignetteMaskTest, PieceOfTheCpuMaskEqualsTheAreaOfTheWhole)
{
    VignetteMask mask(offCentre, width, height, insufficientLimit);
    const std::vector<float> whole = pieceOf(mask, {0, 0, width, height});
    const std::vector<float> piece = pieceOf(mask, {387, 31, 129, 31});
    for (std::size_t i = 0; i < piece.size(); ++i) {
        ASSERT_EQ(piece[i], whole[(31 + i / 129) * width + 387 + i % 129]) << i;
    }
}

// A drawn piece has its own centre, a float in percent. Its rounding changes few values, and these by at most one of
// 255 levels.
TEST_P(DrawnPieces, HaveTheLevelsOfTheWhole)
{
    const Case &mask = GetParam();
    VignetteMask drawn(mask.vignette, mask.width, mask.height, std::max(mask.width, mask.height));
    const std::vector<float> whole = pieceOf(drawn, {0, 0, mask.width, mask.height});
    Apart apart;
    for (std::size_t x = 0; x < mask.width; x += mask.width / 4) {
        for (std::size_t y = 0; y < mask.height; y += mask.height / 4) {
            const TileArea area{x, y, mask.width / 4, mask.height / 4};
            apart.add(pieceOf(drawn, area), area, whole, mask.width);
        }
    }

    const double percent = 100.0 * static_cast<double>(apart.otherLevels) / static_cast<double>(whole.size());
    std::cout << "pieces: largest difference " << apart.largest << ", another level in " << percent << " %\n";
    EXPECT_EQ(apart.pixels, whole.size());
    EXPECT_LE(apart.mostLevels, 1);
    EXPECT_LE(percent, 0.001);
}

INSTANTIATE_TEST_SUITE_P(Masks, DrawnPieces,
                         testing::Values(Case{"Small", 516, 124, centred}, Case{"SmallOffCentre", 516, 124, offCentre},
                                         Case{"Centred", 2052, 2052, centred}, Case{"OffCentre", 2052, 2052, offCentre},
                                         Case{"InACorner", 2056, 1500, {{99, 1, 0}, 73, 47}},
                                         Case{"Wide", 8192, 512, {{3, 71, 0}, 55, 80}},
                                         Case{"High", 512, 8192, {{97, 13, 0}, 55, 80}},
                                         Case{"Large", 6000, 4000, {{37, 12, 0}, 55, 80}},
                                         Case{"SmallRadius", 2052, 2052, {{30, 80, 0}, 100, 1}}),
                         [](const auto &test) { return test.param.name; });

TEST_F(VignetteMaskTest, IsCreatedOnlyIfTheVignetteIsEnabled)
{
    graphics::FlexibleDocumentView view(8, 8, 8, 8, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE);
    graphics::FilterSet filters;
    filters.get<graphics::MixerFilter>().enabled = true;
    filters.get<graphics::CurveFilter>().enabled = true;
    const auto masksOfARender = [&](bool vignette) {
        filters.get<graphics::VignetteFilter>().enabled = vignette;
        graphics::Image image = imageOf(rampPicture<std::uint8_t>(2049, 3));
        const int before = masks;
        EXPECT_TRUE(graphics::renderFinalImage(image, {}, filters, view));
        return masks - before;
    };

    EXPECT_EQ(masksOfARender(false), 0);
    EXPECT_EQ(masksOfARender(true), 4) << "one for each tile";
}

TEST_F(VignetteMaskTest, LeavesNothingBound)
{
    makeVignetteMask(offCentre, width, height, sufficientLimit);

    EXPECT_EQ(activeUnit(), 0);
    expectStateAfterPass();
}

} // namespace grisal::test
