// SPDX-License-Identifier: MIT
#include "math/BSplineBase.h"

#include "math/BSpline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <iterator>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace grisal::math;

std::vector<float> evenlySpaced(int count)
{
    std::vector<float> values(count);
    for (int i = 0; i < count; ++i) {
        values[i] = static_cast<float>(i) / static_cast<float>(count - 1);
    }
    return values;
}

BSplineBase<float> withPoints(int count, double wavelength, int numNodes)
{
    const std::vector<float> x = evenlySpaced(count);
    return {x.data(), count, wavelength, 2, numNodes};
}

/// The debug output of a spline.
template <typename Work>
std::string debugOutputOf(bool debug, Work work)
{
    const std::ostringstream output;
    std::streambuf *const before = std::cerr.rdbuf(output.rdbuf());
    BSplineBase<float>::setDebug(debug);
    work();
    BSplineBase<float>::setDebug(false);
    std::cerr.rdbuf(before);
    return output.str();
}

void fitLine(int numNodes)
{
    const std::vector<float> x = evenlySpaced(5);
    const BSpline<float> spline(x.data(), 5, x.data(), 0.25, 2, numNodes);
}

TEST(BSplineBase, NumberOfNodesDeterminesTheIntervals)
{
    const BSplineBase<float> base = withPoints(2, 0.005, 50);
    ASSERT_TRUE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 49);
    EXPECT_DOUBLE_EQ(base.nodeSpacing(), 1.0 / 49);
    EXPECT_NEAR(base.alpha(), 2.3118e-6, 1e-10);
}

TEST(BSplineBase, SpacingDependsOnTheSpanInAnyPointOrder)
{
    const float x[] = {3, -2, 8, 1};
    const BSplineBase<float> base(x, 4, 1, 2, 6);
    ASSERT_TRUE(base.ok());
    EXPECT_DOUBLE_EQ(base.nodeSpacing(), 2);
    EXPECT_NEAR(base.alpha(), std::pow(0.5 / 6.2831854, 4), 1e-12);
}

TEST(BSplineBase, WavelengthOfZeroEqualsWavelengthOfOne)
{
    EXPECT_EQ(withPoints(2, 0, 50).alpha(), withPoints(2, 1, 50).alpha());
    EXPECT_NEAR(withPoints(2, 0, 50).alpha(), 3698.8, 0.1);
}

TEST(BSplineBase, WithoutWavelengthAndNodesUsesTwoIntervalsPerPoint)
{
    const BSplineBase<float> base = withPoints(7, 0, 0);
    ASSERT_TRUE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 14);
    EXPECT_NEAR(base.alpha(), std::pow(14 / 6.2831854, 4), 1e-9);
}

TEST(BSplineBase, UsesTheFewestIntervalsWithFourNodesPerWavelength)
{
    EXPECT_EQ(withPoints(101, 0.1, 0).nodeIntervals(), 40);
    EXPECT_EQ(withPoints(101, 0.15, 0).nodeIntervals(), 27);
    EXPECT_EQ(withPoints(101, 1, 0).nodeIntervals(), 10);
}

TEST(BSplineBase, NumberOfPointsLimitsTheIntervals)
{
    const BSplineBase<float> base = withPoints(31, 0.1, 0);
    EXPECT_TRUE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 30);
    EXPECT_TRUE(withPoints(21, 0.1, 0).ok());
    EXPECT_FALSE(withPoints(20, 0.1, 0).ok());
    EXPECT_FALSE(withPoints(10, 1, 0).ok());
}

TEST(BSplineBase, WavelengthBeyondTheSpanFailsWithoutNumberOfNodes)
{
    EXPECT_TRUE(withPoints(101, 1, 0).ok());
    EXPECT_FALSE(withPoints(101, 1.01, 0).ok());
    EXPECT_TRUE(withPoints(101, 1.01, 50).ok());
}

TEST(BSplineBase, PointsWithEqualXAreNotReady)
{
    const float x[] = {0.5F, 0.5F, 0.5F};
    const BSplineBase<float> base(x, 3, 0.005, 2, 50);
    EXPECT_FALSE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 0);
}

TEST(BSplineBase, SingularMatrixIsNotReady)
{
    // The wavelength is so short that its weight is zero, so 48 of the nodes are not determined.
    EXPECT_FALSE(withPoints(2, 1e-90, 50).ok());
    EXPECT_FALSE(withPoints(2, std::numeric_limits<double>::infinity(), 50).ok());
}

TEST(BSplineBase, PrintsNothingByDefault)
{
    EXPECT_EQ(debugOutputOf(false, [] { fitLine(6); }), "");
}

TEST(BSplineBase, DebugModePrintsEachStep)
{
    const std::string output = debugOutputOf(true, [] { fitLine(6); });
    std::size_t from = 0;
    for (const char *text :
         {"Using M node intervals: 5 of length DX: 0.2\n", "X min: 0 ; X max: 1\n",
          "Data points per interval: ", "Nodes per wavelength: 1.25\n", "Derivative constraint degree: 2\n",
          "Cutoff wavelength: 0.25\n", "Alpha: ", "Calculating Q...\n", "Calculating P...\n", "Done.\n",
          "Array Q after addition of P.\n", "Beginning LU factoring of P+Q...\n", "LU factor of (P+Q) =\n", "Done.\n",
          "Mean for y: 0.5\n", "Solving for B...\n", "Solution a for (P+Q)a = b\n"}) {
        const std::size_t at = output.find(text, from);
        ASSERT_NE(at, std::string::npos) << text << " in\n" << output;
        from = at + std::string(text).size();
    }
}

TEST(BSplineBase, DebugModePrintsSmallMatricesOnly)
{
    // The matrices of 29 intervals are printed, those of 30 are not. The coefficients are printed in both cases.
    const std::string small = debugOutputOf(true, [] { fitLine(30); });
    const std::string large = debugOutputOf(true, [] { fitLine(31); });
    const auto lines = [](const std::string &text) { return std::count(text.begin(), text.end(), '\n'); };
    const auto matrices = (lines(small) - 30) - (lines(large) - 31);
    EXPECT_EQ(matrices, 3 * 30);

    const std::string title = "Array Q after addition of P.\n";
    std::istringstream firstRow(small.substr(small.find(title) + title.size()));
    std::string row;
    std::getline(firstRow, row);
    std::istringstream columns(row);
    EXPECT_EQ(std::distance(std::istream_iterator<double>(columns), std::istream_iterator<double>()), 30);
    EXPECT_NE(small.find("    0     0 "), std::string::npos);
}

TEST(BSplineBase, DebugModePrintsTheFailedStep)
{
    const std::string singular = debugOutputOf(true, [] { withPoints(2, 1e-90, 50); });
    EXPECT_NE(singular.find("LU_factor_banded() failed.\nFactoring failed.\n"), std::string::npos);

    const float x[] = {0, 1};
    const float y[] = {0, std::numeric_limits<float>::quiet_NaN()};
    const std::string unsolved = debugOutputOf(true, [&] { const BSpline<float> spline(x, 2, y, 0.005, 2, 50); });
    EXPECT_NE(unsolved.find("LU_solve_banded() failed.\n"), std::string::npos);
    EXPECT_EQ(unsolved.find("Solution a"), std::string::npos);
}

} // namespace
