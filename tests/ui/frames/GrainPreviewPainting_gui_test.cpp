// SPDX-License-Identifier: MIT
// What the grain preview shows; its weights and tiles are tested in GrainPreview_gui_test.
#include "tests/ui/frames/GrainPreviewTest.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

// The resource macros must be used outside of any namespace.
static void removeTiles()
{
    Q_CLEANUP_RESOURCE(grain_tiles);
}

static void bringTilesBack()
{
    Q_INIT_RESOURCE(grain_tiles);
}

namespace
{

using namespace grisal::test;

/// The contents of the strip in logical pixels: the tile, with the weights as alpha, over the ramp.
QImage drawnStrip(const char *tile, const QVector<float> &weights, QSize size)
{
    QImage grain(tileOf(tile).convertToFormat(QImage::Format_ARGB32));
    for (int x = 0; x < std::min(size.width(), grain.width()); ++x) {
        const auto weight = static_cast<double>(weights[x * 255 / size.width()]);
        for (int y = 0; y < grain.height(); ++y) {
            QColor colour = grain.pixelColor(x, y);
            colour.setAlpha(
                static_cast<int>(weight * 255 + 1e-4)); // decimal fractions may be slightly too small as float
            grain.setPixelColor(x, y, colour);
        }
    }
    QImage strip(size, QImage::Format_ARGB32);
    QPainter painter(&strip);
    QLinearGradient ramp(0, 0, size.width(), 0);
    ramp.setStops({{0, QColor(0, 0, 0)}, {1, QColor(255, 255, 255)}});
    painter.fillRect(0, 0, size.width(), size.height(), ramp);
    painter.setCompositionMode(QPainter::CompositionMode_Overlay);
    painter.drawImage(0, 0, grain);
    painter.end();
    return strip.convertToFormat(QImage::Format_RGB32);
}

class GrainPreviewPainting : public GrainPreviewTest
{
protected:
    /// Expects that the strip shows the image, scaled by the device pixel ratio.
    void expectPainted(QImage expected)
    {
        const qreal density = preview.devicePixelRatioF();
        QImage shown = painted();
        ASSERT_EQ(shown.size(), expected.size() * density);
        shown.setDevicePixelRatio(1);
        expected = expected.scaled(shown.size());
        EXPECT_EQ(shown, expected);
    }
};

TEST_F(GrainPreviewPainting, ShowsTheRampWithoutAnyTile)
{
    expectWarning(QStringLiteral("Cannot find preblurred map: :/Prerender/Icons/Blur/blur_1_5.png"));
    removeTiles();
    GrainPreview bare;
    bringTilesBack();
    bare.resize(390, 60);
    const QImage withoutWeights = bare.grab().toImage();
    bare.slotAdjustWeights(QVector<float>(256, 1.0F));
    const QImage withWeights = bare.grab().toImage();

    preview.slotAdjustWeights(QVector<float>(256, 0.0F));
    const QImage ramp = preview.grab().toImage();

    EXPECT_EQ(withoutWeights, ramp);
    for (int x = 0; x < ramp.width(); ++x) {
        EXPECT_NEAR(qRed(withWeights.pixel(x, 30)), qRed(ramp.pixel(x, 30)), 1) << x;
    }
}

TEST_F(GrainPreviewPainting, ShowsTheGrainOverTheRamp)
{
    painted();
    const std::array<std::pair<float, const char *>, 3> tiles{{{0.0F, "0_0"}, {1.7F, "1_5"}, {3.0F, "3_0"}}};
    for (const auto &[radius, name] : tiles) {
        for (const QVector<float> &weights : {risingWeights(), QVector<float>(256, 0.5F), QVector<float>(256, 1.0F)}) {
            preview.slotAdjustWeights(weights);
            preview.slotSetRadius(radius);
            expectPainted(drawnStrip(name, weights, {390, 60}));
        }
    }
}

TEST_F(GrainPreviewPainting, GrainIsFullWithoutWeights)
{
    expectPainted(drawnStrip("1_5", QVector<float>(256, 1.0F), {390, 60}));
}

TEST_F(GrainPreviewPainting, WeightsOfZeroShowTheRamp)
{
    preview.slotAdjustWeights(QVector<float>(256, 0.0F));

    const QImage shown = painted();

    for (int x = 0; x < shown.width(); ++x) {
        const double grey = 255.0 * (x + 0.5) / shown.width();
        EXPECT_NEAR(qRed(shown.pixel(x, shown.height() / 2)), grey, 1.0) << x;
        EXPECT_TRUE(qIsGray(shown.pixel(x, shown.height() / 2))) << x;
    }
}

// Independent computation of the overlay: 2 * s * d in the dark half, 1 - 2 * (1 - d) * (1 - s) in the light one.
TEST_F(GrainPreviewPainting, FullGrainIsOverlaid)
{
    const QImage tile = tileOf("1_5");
    const qreal density = preview.devicePixelRatioF();
    const QImage shown = painted();
    for (int x = 0; x < 390; ++x) {
        const double d = (x + 0.5) / 390;
        const double s = qRed(tile.pixel(x, 30)) / 255.0;
        const double expected = d < 0.5 ? 2 * s * d : 1 - 2 * (1 - d) * (1 - s);
        const QPoint at(static_cast<int>(x * density), static_cast<int>(30 * density));
        EXPECT_NEAR(qRed(shown.pixel(at)), expected * 255, 2.0) << x;
    }
}

TEST_F(GrainPreviewPainting, WeightsSetBeforeTheFirstPaintAreShown)
{
    const QImage before = preview.map();
    preview.slotAdjustWeights(risingWeights());
    EXPECT_EQ(preview.map(), before);

    expectPainted(drawnStrip("1_5", risingWeights(), {390, 60}));
}

TEST_F(GrainPreviewPainting, ChangedWidthMapsTheWeightsToItsColumns)
{
    preview.slotAdjustWeights(risingWeights());
    for (const int width : {390, 300, 1, 399, 350}) {
        preview.resize(width, 60);
        expectPainted(drawnStrip("1_5", risingWeights(), {width, 60}));
    }
}

TEST_F(GrainPreviewPainting, OtherHeightsShowTheAvailableRows)
{
    preview.slotAdjustWeights(risingWeights());
    preview.resize(390, 80);
    expectPainted(drawnStrip("1_5", risingWeights(), {390, 80}));
    preview.resize(390, 20);
    expectPainted(drawnStrip("1_5", risingWeights(), {390, 20}));
}

TEST_F(GrainPreviewPainting, WideStripShowsTheAvailableGrain)
{
    preview.resize(500, 60);
    expectPainted(drawnStrip("1_5", QVector<float>(256, 1.0F), {500, 60}));
}

TEST_F(GrainPreviewPainting, WeightsSetOnATooWideStripAreShownOnceItIsNarrow)
{
    expectWarning(tooSmallTile());
    preview.resize(420, 60);
    painted();
    preview.slotAdjustWeights(risingWeights());

    preview.resize(390, 60);

    expectPainted(drawnStrip("1_5", risingWeights(), {390, 60}));
    EXPECT_EQ(log.warnings().size(), 1);
}

} // namespace
