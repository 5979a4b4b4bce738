// SPDX-License-Identifier: MIT
//
// The tiles of the strip under the grain curve, and the comparison of the strip with the grain filter, whose result it
// represents.
#include "graphics/filters/GrainFilter.h"
#include "resources/grain-tiles/GrainTiles.h"
#include "tests/support/FilterRun.h"
#include "tests/support/GlTest.h"
#include "tests/support/PictureCompare.h"
#include "ui/frames/GrainPreview.h"

#include <QFile>

#include <array>
#include <cmath>
#include <iostream>
#include <string>

namespace
{

using namespace grisal::test;
using grisal::grain::Bytes;
using grisal::graphics::GrainFilter;

Bytes noiseMap()
{
    QFile file(QStringLiteral(":/Icons/Icons/noiseMap_512x512x3.raw"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    return {bytes.begin(), bytes.end()};
}

class GrainTilesTest : public testing::TestWithParam<double>
{
};

class GrainNoiseTest : public GlTest, public testing::WithParamInterface<double>
{
};

enum class Strength { Half, Full, Arch };

struct Look {
    float radius = 0;
    Strength strength = Strength::Half;
    int width = 390;
};

class GrainStripTest : public GlTest, public testing::WithParamInterface<Look>
{
};

QVector<float> weightsOf(Strength strength)
{
    QVector<float> weights(256, strength == Strength::Half ? 0.5F : 1.0F);
    if (strength == Strength::Arch) {
        // 0 for black and white, the maximum in the middle.
        for (int i = 0; i < 256; ++i) {
            weights[i] = 1 - std::abs(static_cast<float>(i) / 127.5F - 1);
        }
    }
    return weights;
}

BytePixels rampOf(int width, int height)
{
    BytePixels ramp(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto grey = static_cast<std::uint8_t>(std::lround(255 * (x + 0.5) / width));
            ramp.at(x, y, 0) = ramp.at(x, y, 1) = ramp.at(x, y, 2) = grey;
        }
    }
    return ramp;
}

BytePixels stripOf(const Look &look, int height)
{
    GrainPreview preview;
    preview.resize(look.width, height);
    preview.slotAdjustWeights(weightsOf(look.strength));
    preview.slotSetRadius(look.radius);
    const QImage shown = preview.grab().toImage().scaled(look.width, height).convertToFormat(QImage::Format_RGB888);
    BytePixels strip(look.width, height);
    for (int y = 0; y < height; ++y) {
        std::copy_n(shown.constScanLine(y), look.width * 3, &strip.at(0, y, 0));
    }
    return strip;
}

void PrintTo(const Look &look, std::ostream *out)
{
    *out << "radius " << look.radius << ", weights " << static_cast<int>(look.strength) << ", width " << look.width;
}

} // namespace

TEST(GrainTileFileTest, RadiiAreRoundedDownToMultiplesOfOneHalf)
{
    const auto file = [](const char *name) { return ":/Prerender/Icons/Blur/blur_" + std::string(name) + ".png"; };
    constexpr std::array names{"0_0", "0_5", "1_0", "1_5", "2_0", "2_5", "3_0"};
    for (int tenths = 0; tenths <= 30; ++tenths) {
        const auto radius = static_cast<float>(tenths / 10.0);
        EXPECT_EQ(grainTileFile(radius).toStdString(), file(names.at(static_cast<std::size_t>(tenths / 5)))) << radius;
    }
    EXPECT_EQ(grainTileFile(0.49F).toStdString(), file("0_0"));
    EXPECT_EQ(grainTileFile(2.999F).toStdString(), file("2_5"));
}

TEST_P(GrainTilesTest, EqualTheOutputOfTheirProgram)
{
    const auto tenths = static_cast<int>(std::lround(GetParam() * 10));
    const QImage kept(QStringLiteral(":/Prerender/Icons/Blur/blur_%1_%2.png").arg(tenths / 10).arg(tenths % 10));
    ASSERT_EQ(kept.size(), QSize(grisal::grain::tileWidth, grisal::grain::tileHeight));
    ASSERT_EQ(kept.format(), QImage::Format_Grayscale8);

    const Bytes made = grisal::grain::grainTile(noiseMap(), GetParam());

    for (int y = 0; y < kept.height(); ++y) {
        const auto row = made.begin() + static_cast<std::ptrdiff_t>(y) * kept.width();
        ASSERT_TRUE(std::equal(row, row + kept.width(), kept.constScanLine(y))) << "row " << y;
    }
}

// Sums half way between two levels may differ by one level.
TEST_P(GrainNoiseTest, EqualsTheNoiseOfTheFilter)
{
    GrainFilter filter;
    filter.setSigma(static_cast<float>(GetParam()));
    constexpr int side = grisal::grain::noiseSide;
    const BytePixels filtered = readBytes(filter.blurredNoise()->record(), side, side);

    const Bytes made = grisal::grain::blurredNoise(noiseMap(), GetParam());

    BytePixels red(side, side, 1);
    for (std::size_t i = 0; i < red.values.size(); ++i) {
        red.values[i] = filtered.values[3 * i];
    }
    EXPECT_TRUE(picturesNear("grain-tile-noise", BytePixels(side, side, 1, made), red, {1, 0.001}));
}

INSTANTIATE_TEST_SUITE_P(Radii, GrainTilesTest, testing::ValuesIn(grisal::grain::tileRadii));
INSTANTIATE_TEST_SUITE_P(Radii, GrainNoiseTest, testing::ValuesIn(grisal::grain::tileRadii));

// The limit is a small part of the grain, so that a strip without grain or with another one fails.
TEST_P(GrainStripTest, LooksLikeTheFilter)
{
    constexpr int height = 60;
    GrainFilter filter;
    filter.setSigma(GetParam().radius);
    filter.setWeights(weightsOf(GetParam().strength));
    const BytePixels ramp = rampOf(GetParam().width, height);
    const BytePixels filtered = runFilter(filter, ramp);

    const BytePixels strip = stripOf(GetParam(), height);

    const double apart = difference(strip, filtered).mean;
    const double grain = difference(filtered, ramp).mean;
    std::cout << "mean difference " << apart << ", mean grain " << grain << '\n';
    EXPECT_LT(apart, 3);
    EXPECT_LT(apart, grain / 4);
}

INSTANTIATE_TEST_SUITE_P(Looks, GrainStripTest,
                         testing::Values(Look{0.0F, Strength::Half}, Look{0.0F, Strength::Arch},
                                         Look{0.0F, Strength::Full}, Look{1.5F, Strength::Half},
                                         Look{1.5F, Strength::Arch}, Look{1.5F, Strength::Full},
                                         Look{3.0F, Strength::Half}, Look{3.0F, Strength::Arch},
                                         Look{3.0F, Strength::Full}, Look{0.0F, Strength::Full, 282},
                                         Look{3.0F, Strength::Full, 282}, Look{0.0F, Strength::Full, 340},
                                         Look{3.0F, Strength::Full, 340}));
