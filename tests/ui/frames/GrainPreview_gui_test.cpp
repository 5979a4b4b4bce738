// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"
#include "ui/frames/GrainPreview.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QPainter>
#include <QTest>

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

/// A strip that counts its paint events.
class CountingPreview : public GrainPreview
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        GrainPreview::paintEvent(event);
    }
};

const QString tooSmall = QStringLiteral("Prerendered map is too small.");
const QString noTile = QStringLiteral("Cannot find preblurred map: :/Prerender/Icons/Blur/blur_3_5.png");

/// Weights that differ for every grey and increase with its lightness.
QVector<float> risingWeights(int count = 256)
{
    QVector<float> weights(count);
    for (int i = 0; i < count; ++i) {
        weights[i] = static_cast<float>(i) / 255.0F;
    }
    return weights;
}

QImage tileOf(const char *name)
{
    const QImage tile(QStringLiteral(":/Prerender/Icons/Blur/blur_%1.png").arg(QLatin1String(name)));
    EXPECT_FALSE(tile.isNull()) << name;
    return tile;
}

QImage withoutAlpha(const QImage &map)
{
    QImage opaque = map;
    opaque.reinterpretAsFormat(QImage::Format_RGB32);
    return opaque.convertToFormat(QImage::Format_RGB888);
}

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

class GrainPreviewTest : public GuiTest
{
protected:
    GrainPreviewTest() { preview.resize(390, 60); }

    /// Paints the strip and returns its contents.
    QImage painted() { return preview.grab().toImage().convertToFormat(QImage::Format_RGB32); }

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

    /// The alpha of a column of the map, which is the same in all rows.
    int alphaAt(int x) const
    {
        const int alpha = qAlpha(preview.map().pixel(x, 0));
        for (int y = 1; y < 60; ++y) {
            EXPECT_EQ(qAlpha(preview.map().pixel(x, y)), alpha) << x << ", " << y;
        }
        return alpha;
    }

    CountingPreview preview;
};

} // namespace

TEST_F(GrainPreviewTest, HasTheMiddleBlurAndNoWeightsInitially)
{
    EXPECT_EQ(preview.radius(), 1.5F);
    EXPECT_TRUE(preview.fulcrums().isEmpty());
    EXPECT_EQ(preview.map().size(), QSize(400, 60));
    EXPECT_EQ(preview.map().format(), QImage::Format_ARGB32);
    EXPECT_EQ(preview.map(), tileOf("1_5").convertToFormat(QImage::Format_ARGB32));
}

TEST_F(GrainPreviewTest, PropertiesAndSlotsHaveFixedNamesAndOrder)
{
    const QMetaObject &meta = GrainPreview::staticMetaObject;
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names << QString::fromLatin1(meta.property(i).name());
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        EXPECT_EQ(meta.method(i).methodType(), QMetaMethod::Slot);
        names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')).toStdString(),
              "radius fulcrums slotSetRadius(float) slotAdjustWeights(QList<float>)");
}

TEST_F(GrainPreviewTest, PropertiesAreReadableAndWritable)
{
    EXPECT_TRUE(preview.setProperty("radius", 2.0F));
    EXPECT_TRUE(preview.setProperty("fulcrums", QVariant::fromValue(risingWeights())));

    EXPECT_EQ(preview.radius(), 2.0F);
    EXPECT_EQ(preview.property("radius").toFloat(), 2.0F);
    EXPECT_EQ(preview.fulcrums(), risingWeights());
    EXPECT_EQ(preview.property("fulcrums").value<QVector<float>>(), risingWeights());
}

TEST_F(GrainPreviewTest, RadiusSelectsItsTile)
{
    const std::array<std::pair<float, const char *>, 5> tiles{
        {{1.7F, "1_5"}, {0.4F, "0_0"}, {2.0F, "2_0"}, {3.0F, "3_0"}, {0.0F, "0_0"}}};
    for (const auto &[radius, name] : tiles) {
        preview.slotSetRadius(radius);
        EXPECT_EQ(preview.radius(), radius);
        EXPECT_EQ(preview.map(), tileOf(name).convertToFormat(QImage::Format_ARGB32)) << radius;
    }
}

TEST_F(GrainPreviewTest, SameRadiusDoesNotRepaint)
{
    preview.show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return preview.paints > 0; }));
    // From here on, paint events are only caused by posted events.
    QCoreApplication::processEvents();
    const int before = preview.paints;
    const auto key = preview.map().cacheKey();

    preview.slotSetRadius(1.5F);
    preview.slotSetRadius(1.5F * 1.000005F);
    QCoreApplication::processEvents();
    EXPECT_EQ(preview.paints, before);
    EXPECT_EQ(preview.map().cacheKey(), key);
    EXPECT_EQ(preview.radius(), 1.5F);

    preview.slotSetRadius(1.5F * 1.00002F);
    QCoreApplication::processEvents();
    EXPECT_GT(preview.paints, before);
    EXPECT_EQ(preview.radius(), 1.5F * 1.00002F);
}

TEST_F(GrainPreviewTest, RadiusWithoutTileIsLoggedAndKeepsTheGrain)
{
    expectWarning(noTile);
    const QImage before = preview.map();

    preview.slotSetRadius(3.5F);

    EXPECT_EQ(log.warnings(), QStringList(noTile));
    EXPECT_EQ(preview.radius(), 3.5F);
    EXPECT_EQ(preview.map(), before);
}

TEST_F(GrainPreviewTest, ShowsTheRampWithoutAnyTile)
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

TEST_F(GrainPreviewTest, WeightsSetTheAlphaOfTheColumnsOfTheirGreys)
{
    painted();
    preview.slotAdjustWeights(risingWeights());

    EXPECT_EQ(preview.fulcrums(), risingWeights());
    for (int x = 0; x < 390; ++x) {
        EXPECT_EQ(alphaAt(x), x * 255 / 390) << x;
    }
    for (int x = 390; x < 400; ++x) {
        EXPECT_EQ(alphaAt(x), 255) << x;
    }
    EXPECT_EQ(withoutAlpha(preview.map()), tileOf("1_5").convertToFormat(QImage::Format_RGB888));
}

TEST_F(GrainPreviewTest, AlphaIsTruncatedAndClampedToAByte)
{
    painted();
    const std::array<std::pair<float, int>, 7> alphas{
        {{0.5F, 127}, {0.999F, 254}, {1.0F, 255}, {0.0F, 0}, {1.7F, 255}, {-0.3F, 0}, {0.2F, 51}}};
    for (const auto &[weight, alpha] : alphas) {
        preview.slotAdjustWeights(QVector<float>(256, weight));
        EXPECT_EQ(alphaAt(0), alpha) << weight;
        EXPECT_EQ(alphaAt(389), alpha) << weight;
    }
}

TEST_F(GrainPreviewTest, GreysWithoutWeightKeepTheirAlpha)
{
    painted();

    preview.slotAdjustWeights(QVector<float>(100, 0.5F));

    // 100 is the first grey without a weight, and 152 * 255 / 390 = 99.4 the last column below it.
    EXPECT_EQ(alphaAt(152), 127);
    EXPECT_EQ(alphaAt(153), 255);
}

TEST_F(GrainPreviewTest, EmptyWeightsKeepTheFormerOnes)
{
    painted();
    const QImage opaque = preview.map();
    preview.slotAdjustWeights({});
    EXPECT_EQ(preview.map(), opaque);
    EXPECT_TRUE(preview.fulcrums().isEmpty());

    preview.slotAdjustWeights(QVector<float>(256, 0.5F));
    preview.slotAdjustWeights({});
    EXPECT_EQ(preview.fulcrums(), QVector<float>(256, 0.5F));
    EXPECT_EQ(alphaAt(0), 127);
}

TEST_F(GrainPreviewTest, ChangedRadiusKeepsTheWeights)
{
    painted();
    preview.slotAdjustWeights(risingWeights());

    preview.slotSetRadius(0.5F);

    EXPECT_EQ(alphaAt(195), 127);
    EXPECT_EQ(withoutAlpha(preview.map()), tileOf("0_5").convertToFormat(QImage::Format_RGB888));
}

TEST_F(GrainPreviewTest, ShowsTheGrainOverTheRamp)
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

TEST_F(GrainPreviewTest, GrainIsFullWithoutWeights)
{
    expectPainted(drawnStrip("1_5", QVector<float>(256, 1.0F), {390, 60}));
}

TEST_F(GrainPreviewTest, WeightsOfZeroShowTheRamp)
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
TEST_F(GrainPreviewTest, FullGrainIsOverlaid)
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

TEST_F(GrainPreviewTest, WeightsSetBeforeTheFirstPaintAreShown)
{
    const QImage before = preview.map();
    preview.slotAdjustWeights(risingWeights());
    EXPECT_EQ(preview.map(), before);

    expectPainted(drawnStrip("1_5", risingWeights(), {390, 60}));
}

TEST_F(GrainPreviewTest, ChangedWidthMapsTheWeightsToItsColumns)
{
    preview.slotAdjustWeights(risingWeights());
    for (const int width : {390, 300, 1, 399, 350}) {
        preview.resize(width, 60);
        expectPainted(drawnStrip("1_5", risingWeights(), {width, 60}));
    }
}

TEST_F(GrainPreviewTest, OtherHeightsShowTheAvailableRows)
{
    preview.slotAdjustWeights(risingWeights());
    preview.resize(390, 80);
    expectPainted(drawnStrip("1_5", risingWeights(), {390, 80}));
    preview.resize(390, 20);
    expectPainted(drawnStrip("1_5", risingWeights(), {390, 20}));
}

TEST_F(GrainPreviewTest, StripAsWideAsTheMapIsLoggedAtEveryChangeOfWeights)
{
    expectWarning(tooSmall);
    preview.resize(399, 60);
    painted();
    preview.slotAdjustWeights(risingWeights());
    EXPECT_TRUE(log.warnings().isEmpty());
    const QImage before = preview.map();

    preview.resize(400, 60);
    painted();
    EXPECT_TRUE(log.warnings().isEmpty());
    preview.slotAdjustWeights(QVector<float>(256, 0.5F));
    preview.slotAdjustWeights({});
    painted();
    EXPECT_EQ(log.warnings(), QStringList({tooSmall, tooSmall}));
    EXPECT_EQ(preview.map(), before);
    EXPECT_EQ(preview.fulcrums(), QVector<float>(256, 0.5F));
}

TEST_F(GrainPreviewTest, WideStripShowsTheAvailableGrain)
{
    preview.resize(500, 60);
    expectPainted(drawnStrip("1_5", QVector<float>(256, 1.0F), {500, 60}));
}

TEST_F(GrainPreviewTest, WeightsSetOnATooWideStripAreShownOnceItIsNarrow)
{
    expectWarning(tooSmall);
    preview.resize(420, 60);
    painted();
    preview.slotAdjustWeights(risingWeights());

    preview.resize(390, 60);

    expectPainted(drawnStrip("1_5", risingWeights(), {390, 60}));
    EXPECT_EQ(log.warnings().size(), 1);
}
