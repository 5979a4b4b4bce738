// SPDX-License-Identifier: MIT
#include "graphics/look/CurvePoints.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

using namespace grisal::graphics;

constexpr int count = 256;

CurvePoints identity()
{
    return {{0, 0.5F, 1}, {1, 0.5F, 0}};
}

TEST(CurvePoints, AreTwoAtHalfHeightInitially)
{
    const CurvePoints points;
    EXPECT_EQ(points.xs, (QVector<float>{0, 1}));
    EXPECT_EQ(points.ys, (QVector<float>{0.5F, 0.5F}));
}

TEST(CurvePoints, PointIsFoundInItsColumnOnly)
{
    EXPECT_EQ(pointAt(identity(), 0), 0);
    EXPECT_EQ(pointAt(identity(), 0.0199F), 0);
    EXPECT_EQ(pointAt(identity(), 0.0201F), -1);
    EXPECT_EQ(pointAt(identity(), 0.4801F), 1);
    EXPECT_EQ(pointAt(identity(), 0.5199F), 1);
    EXPECT_EQ(pointAt(identity(), 0.25F), -1);
    EXPECT_EQ(pointAt(identity(), 0.9801F), 2);
    EXPECT_EQ(pointAt(identity(), 1.01F), 2);
}

TEST(CurvePoints, NearerOfTheFirstTwoPointsInReachIsFound)
{
    const CurvePoints atTheStart{{0, 0.03125F, 1}, {1, 0.5F, 0}};
    EXPECT_EQ(pointAt(atTheStart, 0.015F), 0);
    EXPECT_EQ(pointAt(atTheStart, 0.015625F), 0);
    EXPECT_EQ(pointAt(atTheStart, 0.016F), 1);
    const CurvePoints inTheMiddle{{0, 0.5F, 0.53125F, 1}, {1, 0.5F, 0.5F, 0}};
    EXPECT_EQ(pointAt(inTheMiddle, 0.515625F), 1);
    EXPECT_EQ(pointAt(inTheMiddle, 0.5195F), 1);
    EXPECT_EQ(pointAt(inTheMiddle, 0.5205F), 2);
}

TEST(CurvePoints, PointIsAddedBetweenItsNeighbours)
{
    CurvePoints points = identity();
    EXPECT_EQ(insertPoint(points, 0.75F, 1.25F), 2);
    EXPECT_EQ(points.xs, (QVector<float>{0, 0.5F, 0.75F, 1}));
    EXPECT_EQ(points.ys, (QVector<float>{1, 0.5F, 1.25F, 0}));
}

TEST(CurvePoints, NoPointIsAddedAfterTheLast)
{
    CurvePoints points{{0, 0.5F}, {1, 0}};
    EXPECT_EQ(insertPoint(points, 0.75F, 0), -1);
    EXPECT_EQ(points.count(), 2);
}

TEST(CurvePoints, EndPointsMoveVerticallyOnly)
{
    CurvePoints points = identity();
    movePoint(points, 0, 0.3F, 0.25F);
    movePoint(points, 2, 0.7F, 0.75F);
    EXPECT_EQ(points.xs, identity().xs);
    EXPECT_EQ(points.ys, (QVector<float>{0.25F, 0.5F, 0.75F}));
}

TEST(CurvePoints, InnerPointStopsBeforeItsNeighbours)
{
    CurvePoints points = identity();
    movePoint(points, 1, 0.03F, 0.25F);
    EXPECT_EQ(points.xs[1], 0.03F);
    movePoint(points, 1, 0.0199F, 0.75F);
    EXPECT_EQ(points.xs[1], 0.03F);
    EXPECT_EQ(points.ys[1], 0.75F);
    movePoint(points, 1, 0.97F, 0.75F);
    EXPECT_EQ(points.xs[1], 0.97F);
    movePoint(points, 1, 0.985F, 0.5F);
    EXPECT_EQ(points.xs[1], 0.97F);
    EXPECT_EQ(points.ys[1], 0.5F);
}

TEST(CurvePoints, EndPointsAreNotRemoved)
{
    CurvePoints points = identity();
    EXPECT_FALSE(removePoint(points, -1));
    EXPECT_FALSE(removePoint(points, 0));
    EXPECT_FALSE(removePoint(points, 2));
    EXPECT_EQ(points.count(), 3);
    EXPECT_TRUE(removePoint(points, 1));
    EXPECT_EQ(points.xs, (QVector<float>{0, 1}));
    EXPECT_EQ(points.ys, (QVector<float>{1, 0}));
    EXPECT_FALSE(removePoint(points, 1));
}

TEST(LinearCurve, OfTheDiagonalEqualsTheSamplePositions)
{
    const QVector<float> values = linearCurve(identity(), count);
    ASSERT_EQ(values.size(), count);
    for (int i = 0; i < count; ++i) {
        EXPECT_FLOAT_EQ(values[i], static_cast<float>(i) / count) << i;
    }
}

TEST(LinearCurve, RunsStraightBetweenThePoints)
{
    const QVector<float> values = linearCurve({{0, 0.25F, 1}, {0.5F, 1, 0.25F}}, count);
    EXPECT_FLOAT_EQ(values[0], 0.5F);
    EXPECT_FLOAT_EQ(values[32], 0.25F);
    EXPECT_FLOAT_EQ(values[64], 0);
    EXPECT_FLOAT_EQ(values[160], 0.375F);
}

TEST(LinearCurve, IsClampedToTheFrame)
{
    const QVector<float> values = linearCurve({{0, 1}, {2, -1}}, count);
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[64], 0);
    EXPECT_FLOAT_EQ(values[128], 0.5F);
    EXPECT_EQ(values[255], 1);
}

TEST(LinearCurve, IsConstantAfterItsLastPoint)
{
    const QVector<float> values = linearCurve({{0, 0.5F}, {1, 0.25F}}, count);
    EXPECT_FLOAT_EQ(values[128], 0.75F);
    EXPECT_FLOAT_EQ(values[255], 0.75F);
}

TEST(LinearCurve, JumpsAtPointsWithEqualX)
{
    const QVector<float> values = linearCurve({{0, 0, 0.5F, 0.5F, 1}, {1, 0.75F, 0.75F, 0.25F, 0.25F}}, count);
    EXPECT_FLOAT_EQ(values[0], 0);
    EXPECT_FLOAT_EQ(values[1], 0.25F);
    EXPECT_FLOAT_EQ(values[128], 0.25F);
    EXPECT_FLOAT_EQ(values[129], 0.75F);
}

TEST(SmoothCurve, OfTheDiagonalEqualsTheSamplePositions)
{
    const QVector<float> values = smoothCurve(identity(), count);
    ASSERT_EQ(values.size(), count);
    for (int i = 0; i < count; ++i) {
        EXPECT_NEAR(values[i], static_cast<float>(i) / count, 1e-6) << i;
    }
}

TEST(SmoothCurve, PassesThroughItsPoints)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> height(0.1F, 0.9F);
    for (int curve = 0; curve < 20; ++curve) {
        const CurvePoints points{{0, 0.25F, 0.5F, 0.75F, 1},
                                 {height(random), height(random), height(random), height(random), height(random)}};
        const QVector<float> values = smoothCurve(points, count);
        for (int i = 0; i < 4; ++i) {
            EXPECT_NEAR(values[i * 64], 1 - points.ys[i], 1e-4) << curve << ", " << i;
        }
    }
}

TEST(SmoothCurve, IsClampedToTheFrame)
{
    const QVector<float> values = smoothCurve({{0, 0.5F, 1}, {1, -0.5F, 1}}, count);
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[128], 1);
}

TEST(SmoothCurve, IsConstantAfterItsLastPoint)
{
    const QVector<float> values = smoothCurve({{0, 0.25F, 0.5F}, {1, 0.5F, 0.25F}}, count);
    EXPECT_NEAR(values[128], 0.75F, 1e-4);
    EXPECT_FLOAT_EQ(values[129], 0.75F);
    EXPECT_FLOAT_EQ(values[255], 0.75F);
}

TEST(Curves, OfOnePointAreConstant)
{
    const CurvePoints point{{0.25F}, {0.75F}};
    EXPECT_EQ(linearCurve(point, count), QVector<float>(count, 0.25F));
    EXPECT_EQ(smoothCurve(point, count), QVector<float>(count, 0.25F));
}

TEST(CurveHistogram, StraightCurveKeepsAllTonesButBlack)
{
    QVector<float> histogram(count);
    for (int i = 0; i < count; ++i) {
        histogram[i] = static_cast<float>(i + 1);
    }
    QVector<float> expected = histogram;
    expected[0] = 0;
    EXPECT_EQ(histogramBehind(linearCurve(identity(), count), histogram), expected);
}

TEST(CurveHistogram, SmoothDiagonalKeepsTheTones)
{
    const QVector<float> histogram(count, 1.0F);
    const QVector<float> behind = histogramBehind(smoothCurve(identity(), count), histogram);
    int moved = 0;
    for (int i = 1; i < count; ++i) {
        moved += behind[i] == 1.0F ? 0 : 1;
    }
    EXPECT_EQ(moved, 0);
}

TEST(CurveHistogram, ConstantCurveCollectsAllTonesInOneBin)
{
    QVector<float> histogram(count, 0.0F);
    histogram[10] = 2;
    histogram[200] = 3;
    QVector<float> expected(count, 0.0F);
    expected[64] = 5;
    EXPECT_EQ(histogramBehind(QVector<float>(count, 0.25F), histogram), expected);
}

TEST(CurveHistogram, TonesThatBecomeWhiteAreOmitted)
{
    QVector<float> histogram(count, 0.0F);
    histogram[128] = 1;
    EXPECT_EQ(histogramBehind(QVector<float>(count, 1.0F), histogram), QVector<float>(count, 0.0F));
}

// A bin i is mapped to i * (1 / (i / 256)), which is 256 except for these, where the quotient is rounded down.
TEST(CurveHistogram, FourteenTonesOfAWhiteCurveAreInTheLastBin)
{
    QVector<float> expected(count, 0.0F);
    expected[255] = 14;
    EXPECT_EQ(histogramBehind(QVector<float>(count, 1.0F), QVector<float>(count, 1.0F)), expected);

    for (const int tone : {49, 98, 103, 107, 161, 187, 196, 197, 206, 214, 237, 239, 249, 253}) {
        QVector<float> histogram(count, 0.0F);
        histogram[tone] = 1;
        EXPECT_EQ(histogramBehind(QVector<float>(count, 1.0F), histogram)[255], 1) << tone;
    }
}

TEST(CurveHistogram, WrongNumberOfValuesKeepsTheHistogram)
{
    const QVector<float> histogram(count, 0.5F);
    EXPECT_EQ(histogramBehind(QVector<float>(255, 0.25F), histogram), histogram);
}

} // namespace
