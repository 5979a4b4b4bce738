// SPDX-License-Identifier: MIT
#include "tests/ui/frames/GrainPreviewTest.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QTest>

#include <array>
#include <utility>

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

const QString noTile = QStringLiteral("Cannot find preblurred map: :/Prerender/Icons/Blur/blur_3_5.png");

QImage withoutAlpha(const QImage &map)
{
    QImage opaque = map;
    opaque.reinterpretAsFormat(QImage::Format_RGB32);
    return opaque.convertToFormat(QImage::Format_RGB888);
}

class GrainPreviewMap : public GrainPreviewTest
{
protected:
    /// The alpha of a column of the map, which is the same in all rows.
    int alphaAt(int x) const
    {
        const int alpha = qAlpha(preview.map().pixel(x, 0));
        for (int y = 1; y < 60; ++y) {
            EXPECT_EQ(qAlpha(preview.map().pixel(x, y)), alpha) << x << ", " << y;
        }
        return alpha;
    }
};

} // namespace

TEST_F(GrainPreviewMap, HasTheMiddleBlurAndNoWeightsInitially)
{
    EXPECT_EQ(preview.radius(), 1.5F);
    EXPECT_TRUE(preview.fulcrums().isEmpty());
    EXPECT_EQ(preview.map().size(), QSize(400, 60));
    EXPECT_EQ(preview.map().format(), QImage::Format_ARGB32);
    EXPECT_EQ(preview.map(), tileOf("1_5").convertToFormat(QImage::Format_ARGB32));
}

TEST_F(GrainPreviewMap, PropertiesAndSlotsHaveFixedNamesAndOrder)
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

TEST_F(GrainPreviewMap, PropertiesAreReadableAndWritable)
{
    EXPECT_TRUE(preview.setProperty("radius", 2.0F));
    EXPECT_TRUE(preview.setProperty("fulcrums", QVariant::fromValue(risingWeights())));

    EXPECT_EQ(preview.radius(), 2.0F);
    EXPECT_EQ(preview.property("radius").toFloat(), 2.0F);
    EXPECT_EQ(preview.fulcrums(), risingWeights());
    EXPECT_EQ(preview.property("fulcrums").value<QVector<float>>(), risingWeights());
}

TEST_F(GrainPreviewMap, RadiusSelectsItsTile)
{
    const std::array<std::pair<float, const char *>, 5> tiles{
        {{1.7F, "1_5"}, {0.4F, "0_0"}, {2.0F, "2_0"}, {3.0F, "3_0"}, {0.0F, "0_0"}}};
    for (const auto &[radius, name] : tiles) {
        preview.slotSetRadius(radius);
        EXPECT_EQ(preview.radius(), radius);
        EXPECT_EQ(preview.map(), tileOf(name).convertToFormat(QImage::Format_ARGB32)) << radius;
    }
}

TEST_F(GrainPreviewMap, SameRadiusDoesNotRepaint)
{
    CountingPreview strip;
    strip.show();
    ASSERT_TRUE(QTest::qWaitFor([&strip] { return strip.paints > 0; }));
    // From here on, paint events are only caused by posted events.
    QCoreApplication::processEvents();
    const int before = strip.paints;
    const auto key = strip.map().cacheKey();

    strip.slotSetRadius(1.5F);
    strip.slotSetRadius(1.5F * 1.000005F);
    QCoreApplication::processEvents();
    EXPECT_EQ(strip.paints, before);
    EXPECT_EQ(strip.map().cacheKey(), key);
    EXPECT_EQ(strip.radius(), 1.5F);

    strip.slotSetRadius(1.5F * 1.00002F);
    QCoreApplication::processEvents();
    EXPECT_GT(strip.paints, before);
    EXPECT_EQ(strip.radius(), 1.5F * 1.00002F);
}

TEST_F(GrainPreviewMap, RadiusWithoutTileIsLoggedAndKeepsTheGrain)
{
    expectWarning(noTile);
    const QImage before = preview.map();

    preview.slotSetRadius(3.5F);

    EXPECT_EQ(log.warnings(), QStringList(noTile));
    EXPECT_EQ(preview.radius(), 3.5F);
    EXPECT_EQ(preview.map(), before);
}

TEST_F(GrainPreviewMap, WeightsSetTheAlphaOfTheColumnsOfTheirGreys)
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

TEST_F(GrainPreviewMap, AlphaIsTruncatedAndClampedToAByte)
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

TEST_F(GrainPreviewMap, GreysWithoutWeightKeepTheirAlpha)
{
    painted();

    preview.slotAdjustWeights(QVector<float>(100, 0.5F));

    // 100 is the first grey without a weight, and 152 * 255 / 390 = 99.4 the last column below it.
    EXPECT_EQ(alphaAt(152), 127);
    EXPECT_EQ(alphaAt(153), 255);
}

TEST_F(GrainPreviewMap, EmptyWeightsKeepTheFormerOnes)
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

TEST_F(GrainPreviewMap, ChangedRadiusKeepsTheWeights)
{
    painted();
    preview.slotAdjustWeights(risingWeights());

    preview.slotSetRadius(0.5F);

    EXPECT_EQ(alphaAt(195), 127);
    EXPECT_EQ(withoutAlpha(preview.map()), tileOf("0_5").convertToFormat(QImage::Format_RGB888));
}

TEST_F(GrainPreviewMap, StripAsWideAsTheMapIsLoggedAtEveryChangeOfWeights)
{
    expectWarning(tooSmallTile());
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
    EXPECT_EQ(log.warnings(), QStringList({tooSmallTile(), tooSmallTile()}));
    EXPECT_EQ(preview.map(), before);
    EXPECT_EQ(preview.fulcrums(), QVector<float>(256, 0.5F));
}
