// SPDX-License-Identifier: MIT
#include "math/BSpline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace
{

using namespace grisal::math;

// The settings of the curve editor.
constexpr double editorWavelength = 0.005;
constexpr int editorBoundary = 2;
constexpr int editorNodes = 50;

struct Points {
    std::vector<float> x;
    std::vector<float> y;

    int count() const { return static_cast<int>(x.size()); }
};

BSpline<float> fitted(const Points &points, double wavelength = editorWavelength, int boundaryType = editorBoundary,
                      int numNodes = editorNodes)
{
    return {points.x.data(), points.count(), points.y.data(), wavelength, boundaryType, numNodes};
}

/// Control points that a user can set: the first at 0, the last at 1, with the minimum distance of the editor.
Points randomPoints(std::mt19937 &random, int count)
{
    constexpr double nearest = 0.0201;
    const auto unit = [&random] { return static_cast<double>(random()) / 4294967296.0; };
    std::vector<double> shares(count - 1);
    std::generate(shares.begin(), shares.end(), [&unit] { return -std::log(1 - unit()); });
    const double all = std::accumulate(shares.begin(), shares.end(), 0.0);
    Points points;
    double x = 0;
    for (int i = 0; i < count; ++i) {
        points.x.push_back(i == count - 1 ? 1.0F : static_cast<float>(x));
        points.y.push_back(static_cast<float>(unit()));
        if (i < count - 1) {
            x += nearest + shares[i] / all * (1 - nearest * (count - 1));
        }
    }
    return points;
}

/// Independent solution of the same minimisation: double precision, a dense matrix, numerical integration of the
/// penalty, elimination of the phantom coefficients by the boundary conditions, and elimination with pivoting.
class DenseSpline
{
public:
    DenseSpline(const Points &points, double wavelength, int boundaryType, int numNodes)
        : m_intervals(numNodes - 1), m_boundaryType(boundaryType),
          m_xMin(*std::min_element(points.x.begin(), points.x.end())),
          m_spacing((*std::max_element(points.x.begin(), points.x.end()) - m_xMin) / m_intervals),
          m_mean(std::accumulate(points.y.begin(), points.y.end(), 0.0) / points.count())
    {
        const int order = m_intervals + 1;
        std::vector<std::vector<double>> rows(order, std::vector<double>(order + 1));
        for (int i = 0; i < points.count(); ++i) {
            addProducts(rows, 1, (points.x[i] - m_xMin) / m_spacing, value, points.y[i] - m_mean);
        }
        const double alpha = std::pow(wavelength / (m_spacing * 6.2831854), 4);
        for (int interval = 0; interval < m_intervals; ++interval) {
            // Simpson's rule is exact for the square of a linear function.
            addProducts(rows, alpha / 6, interval, secondDerivative, 0);
            addProducts(rows, alpha * 4 / 6, interval + 0.5, secondDerivative, 0);
            addProducts(rows, alpha / 6, interval + 1, secondDerivative, 0);
        }
        solve(rows);
    }

    double evaluate(double x) const
    {
        double sum = m_mean;
        for (int node = 0; node <= m_intervals; ++node) {
            sum += m_coefficients[node] * shape(node, (x - m_xMin) / m_spacing, value);
        }
        return sum;
    }

private:
    using Function = double (*)(double);

    static double value(double t)
    {
        const double z = std::abs(t);
        if (z >= 2) {
            return 0;
        }
        return z >= 1 ? std::pow(2 - z, 3) / 4 : 1 - 1.5 * z * z + 0.75 * z * z * z;
    }

    static double secondDerivative(double t)
    {
        const double z = std::abs(t);
        if (z >= 2) {
            return 0;
        }
        return z >= 1 ? 1.5 * (2 - z) : 4.5 * z - 3;
    }

    /// The basis function of a node including its part of the phantom node next to the ends, whose coefficient is
    /// -4 a0 - a1 for a value of 0, a1 for a slope of 0, 2 a0 - a1 for a second derivative of 0.
    double shape(int node, double u, Function function) const
    {
        constexpr double own[] = {-4, 0, 2};
        constexpr double next[] = {-1, 1, -1};
        double sum = function(u - node);
        if (node <= 1) {
            sum += (node == 0 ? own : next)[m_boundaryType] * function(u + 1);
        }
        if (node >= m_intervals - 1) {
            sum += (node == m_intervals ? own : next)[m_boundaryType] * function(u - (m_intervals + 1));
        }
        return sum;
    }

    void addProducts(std::vector<std::vector<double>> &rows, double weight, double u, Function function,
                     double height) const
    {
        for (int m = 0; m <= m_intervals; ++m) {
            const double ofRow = weight * shape(m, u, function);
            for (int n = 0; n <= m_intervals; ++n) {
                rows[m][n] += ofRow * shape(n, u, function);
            }
            rows[m].back() += ofRow * height;
        }
    }

    void solve(std::vector<std::vector<double>> &rows)
    {
        const std::size_t order = rows.size();
        for (std::size_t k = 0; k < order; ++k) {
            std::size_t pivot = k;
            for (std::size_t i = k + 1; i < order; ++i) {
                pivot = std::abs(rows[i][k]) > std::abs(rows[pivot][k]) ? i : pivot;
            }
            std::swap(rows[k], rows[pivot]);
            for (std::size_t i = k + 1; i < order; ++i) {
                const double multiplier = rows[i][k] / rows[k][k];
                for (std::size_t j = k; j <= order; ++j) {
                    rows[i][j] -= multiplier * rows[k][j];
                }
            }
        }
        m_coefficients.resize(order);
        for (std::size_t k = order; k-- > 0;) {
            double sum = rows[k][order];
            for (std::size_t j = k + 1; j < order; ++j) {
                sum -= rows[k][j] * m_coefficients[j];
            }
            m_coefficients[k] = sum / rows[k][k];
        }
    }

    int m_intervals;
    int m_boundaryType;
    double m_xMin;
    double m_spacing;
    double m_mean;
    std::vector<double> m_coefficients;
};

double largestDifference(const BSpline<float> &spline, const DenseSpline &dense, float from, float to)
{
    double largest = 0;
    for (int i = 0; i <= 512; ++i) {
        const float x = std::lerp(from, to, static_cast<float>(i) / 512);
        largest = std::max(largest, std::abs(spline.evaluate(x) - dense.evaluate(x)));
    }
    return largest;
}

void expectNotReady(const BSpline<float> &spline)
{
    EXPECT_FALSE(spline.ok());
    for (const float x : {-1.0F, 0.0F, 0.3F, 1.0F, 2.0F}) {
        EXPECT_EQ(spline.evaluate(x), 0.0F);
    }
}

TEST(BSpline, TwoPointsGiveAStraightLine)
{
    const BSpline<float> spline = fitted({{0, 1}, {0, 1}});
    ASSERT_TRUE(spline.ok());
    for (int i = 0; i <= 256; ++i) {
        const float x = static_cast<float>(i) / 256;
        EXPECT_NEAR(spline.evaluate(x), x, 1e-5);
    }
}

TEST(BSpline, ResetPointsGiveAFallingLine)
{
    const BSpline<float> spline = fitted({{0, 0.5F, 1}, {1, 0.5F, 0}});
    ASSERT_TRUE(spline.ok());
    for (int i = 0; i < 256; ++i) {
        const float x = static_cast<float>(i) / 256;
        EXPECT_NEAR(spline.evaluate(x), 1 - x, 1e-5);
    }
}

TEST(BSpline, CurvePassesThroughEveryControlPoint)
{
    std::mt19937 random(20240607);
    double largest = 0;
    for (int curve = 0; curve < 300; ++curve) {
        const Points points = randomPoints(random, 2 + curve % 29);
        const BSpline<float> spline = fitted(points);
        ASSERT_TRUE(spline.ok());
        for (int i = 0; i < points.count(); ++i) {
            const double distance = std::abs(spline.evaluate(points.x[i]) - points.y[i]);
            largest = std::max(largest, distance);
            EXPECT_LT(distance, 1e-4) << "point " << i << " of " << points.count() << " of curve " << curve;
        }
    }
    std::cout << "largest distance from a control point: " << largest << '\n';
}

TEST(BSpline, AgreesWithDenseSolveAtTheEditorSettings)
{
    std::mt19937 random(7);
    double largest = 0;
    for (int count = 2; count <= 30; count += 4) {
        const Points points = randomPoints(random, count);
        const DenseSpline dense(points, editorWavelength, editorBoundary, editorNodes);
        const double difference = largestDifference(fitted(points), dense, 0, 1);
        EXPECT_LT(difference, 1e-4) << count << " points";
        largest = std::max(largest, difference);
    }
    std::cout << "largest difference from the full solve: " << largest << '\n';
}

TEST(BSpline, AgreesWithDenseSolveForAllBoundariesNodesAndWavelengths)
{
    const Points points = {{-3, -1.5F, -1, 0.25F, 2, 2.75F, 4, 5}, {0.4F, 2, -1, 0.5F, 3, 2.5F, -0.5F, 1}};
    for (const int boundaryType : {0, 1, 2}) {
        for (const int numNodes : {7, 8, 23, 60}) {
            for (const double wavelength : {0.2, 1.0, 6.0, 40.0}) {
                const BSpline<float> spline = fitted(points, wavelength, boundaryType, numNodes);
                ASSERT_TRUE(spline.ok());
                const DenseSpline dense(points, wavelength, boundaryType, numNodes);
                EXPECT_LT(largestDifference(spline, dense, -3, 5), 1e-4)
                    << "boundary " << boundaryType << ", " << numNodes << " nodes, wavelength " << wavelength;
            }
        }
    }
}

TEST(BSpline, BoundaryTypeDeterminesTheEnds)
{
    const Points points = {{0, 0.2F, 0.45F, 0.7F, 1}, {1, 3, 2, 4, 5}};
    const float mean = 3;
    // Small against the spacing of the nodes, large against single precision.
    constexpr float step = 0.02F;

    const BSpline<float> zeroValue = fitted(points, 0.1, 0, 11);
    EXPECT_NEAR(zeroValue.evaluate(0), mean, 1e-5);
    EXPECT_NEAR(zeroValue.evaluate(1), mean, 1e-5);

    // The slope at the middle of a step, extrapolated linearly to the end.
    const BSpline<float> zeroSlope = fitted(points, 0.1, 1, 11);
    const auto slope = [&](float x) {
        return (zeroSlope.evaluate(x + step) - zeroSlope.evaluate(x - step)) / 2 / step;
    };
    EXPECT_NEAR(slope(0.02F) * 2 - slope(0.04F), 0, std::abs(slope(0.04F)) * 0.3);

    const BSpline<float> zeroBend = fitted(points, 0.1, 2, 11);
    const auto bend = [&](float x) {
        return zeroBend.evaluate(x + step) - 2 * zeroBend.evaluate(x) + zeroBend.evaluate(x - step);
    };
    EXPECT_GT(std::abs(bend(0.04F)), 1e-4);
    EXPECT_NEAR(bend(0.02F) * 2, bend(0.04F), std::abs(bend(0.04F)) * 0.02);
}

TEST(BSpline, WavelengthOfZeroSmoothsStrongly)
{
    const Points points = {{0, 0.25F, 0.5F, 0.75F, 1}, {0, 1, 0, 1, 0}};
    const BSpline<float> smooth = fitted(points, 0);
    const BSpline<float> one = fitted(points, 1);
    ASSERT_TRUE(smooth.ok());
    for (int i = 0; i <= 64; ++i) {
        const float x = static_cast<float>(i) / 64;
        EXPECT_EQ(smooth.evaluate(x), one.evaluate(x));
        // The best straight line is the mean, 0.4.
        EXPECT_NEAR(smooth.evaluate(x), 0.4, 0.1);
    }
}

TEST(BSpline, OrderOfThePointsDoesNotMatter)
{
    const BSpline<float> sorted = fitted({{0, 0.3F, 0.6F, 1}, {0.1F, 0.9F, 0.2F, 0.7F}});
    const BSpline<float> mixed = fitted({{0.6F, 0, 1, 0.3F}, {0.2F, 0.1F, 0.7F, 0.9F}});
    for (int i = 0; i <= 64; ++i) {
        const float x = static_cast<float>(i) / 64;
        EXPECT_NEAR(sorted.evaluate(x), mixed.evaluate(x), 1e-5);
    }
}

TEST(BSpline, PointsWithEqualXGiveTheirMean)
{
    const BSpline<float> spline = fitted({{0, 0.4F, 0.4F, 1}, {0, 0.2F, 0.8F, 1}});
    ASSERT_TRUE(spline.ok());
    EXPECT_NEAR(spline.evaluate(0.4F), 0.5, 1e-4);
    for (int i = 0; i <= 256; ++i) {
        EXPECT_TRUE(std::isfinite(spline.evaluate(static_cast<float>(i) / 256)));
    }
}

TEST(BSpline, TwoToSixNodesAreSufficient)
{
    // Fewer nodes than the width of the boundary blocks, which must not exceed the matrix.
    for (const int boundaryType : {0, 1, 2}) {
        for (const int numNodes : {2, 3, 4, 5, 6}) {
            const BSpline<float> spline = fitted({{0, 0.5F, 1}, {1, 0, 1}}, 0.5, boundaryType, numNodes);
            EXPECT_TRUE(spline.ok()) << "boundary " << boundaryType << ", " << numNodes << " nodes";
            for (int i = 0; i <= 8; ++i) {
                EXPECT_NEAR(spline.evaluate(static_cast<float>(i) / 8), 0.5, 1.5);
            }
        }
    }
}

TEST(BSpline, ReturnsTheMeanFarBeyondTheEnds)
{
    const BSpline<float> spline = fitted({{0, 1}, {0, 1}});
    const float infinite = std::numeric_limits<float>::infinity();
    for (const float x : {-1e30F, -5.0F, -0.1F, 1.1F, 5.0F, 1e30F, infinite, -infinite}) {
        EXPECT_EQ(spline.evaluate(x), 0.5F);
    }
    // Half an interval beyond the ends, the inner nodes still contribute.
    EXPECT_NE(spline.evaluate(-0.01F), 0.5F);
    EXPECT_NE(spline.evaluate(1.01F), 0.5F);
}

TEST(BSpline, MissingPointsAreNotReady)
{
    const Points none;
    expectNotReady(fitted(none));
    expectNotReady({nullptr, 2, Points{{0, 1}, {0, 1}}.y.data(), editorWavelength, editorBoundary, editorNodes});
    expectNotReady({Points{{0, 1}, {0, 1}}.x.data(), 2, nullptr, editorWavelength, editorBoundary, editorNodes});
    expectNotReady({Points{{0, 1}, {0, 1}}.x.data(), -1, nullptr, editorWavelength, editorBoundary, editorNodes});
}

TEST(BSpline, ArgumentsOutOfRangeAreNotReady)
{
    const Points line = {{0, 1}, {0, 1}};
    expectNotReady(fitted(line, editorWavelength, 3));
    expectNotReady(fitted(line, editorWavelength, 100));
    expectNotReady(fitted(line, editorWavelength, -1));
    expectNotReady(fitted(line, -0.005));
    expectNotReady(fitted(line, std::numeric_limits<double>::quiet_NaN()));
}

TEST(BSpline, PointsWithoutExtentOrNotFiniteAreNotReady)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    expectNotReady(fitted({{0.5F}, {0.5F}}));
    expectNotReady(fitted({{0.5F, 0.5F}, {0, 1}}));
    expectNotReady(fitted({{0, nan, 1}, {0, 0.5F, 1}}));
    expectNotReady(fitted({{0, infinite}, {0, 1}}));
    expectNotReady(fitted({{0, 0.5F, 1}, {0, nan, 1}}));
}

} // namespace
