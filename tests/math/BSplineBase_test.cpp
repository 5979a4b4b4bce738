// SPDX-License-Identifier: MIT
#include "math/BSplineBase.h"

#include "math/BSpline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
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

/// What a spline tells while the debug switch is on.
template <typename Work>
std::string toldBy(bool debug, Work work)
{
    const std::ostringstream told;
    std::streambuf *const before = std::cerr.rdbuf(told.rdbuf());
    BSplineBase<float>::setDebug(debug);
    work();
    BSplineBase<float>::setDebug(false);
    std::cerr.rdbuf(before);
    return told.str();
}

void fitLine(int numNodes)
{
    const std::vector<float> x = evenlySpaced(5);
    const BSpline<float> spline(x.data(), 5, x.data(), 0.25, 2, numNodes);
}

TEST(BSplineBase, AGivenNumberOfNodesFixesTheIntervals)
{
    const BSplineBase<float> base = withPoints(2, 0.005, 50);
    ASSERT_TRUE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 49);
    EXPECT_DOUBLE_EQ(base.nodeSpacing(), 1.0 / 49);
    EXPECT_NEAR(base.alpha(), 2.3118e-6, 1e-10);
}

TEST(BSplineBase, TheSpacingFollowsTheSpanOfTheValuesInAnyOrder)
{
    const float x[] = {3, -2, 8, 1};
    const BSplineBase<float> base(x, 4, 1, 2, 6);
    ASSERT_TRUE(base.ok());
    EXPECT_DOUBLE_EQ(base.nodeSpacing(), 2);
    EXPECT_NEAR(base.alpha(), std::pow(0.5 / 6.2831854, 4), 1e-12);
}

TEST(BSplineBase, AWavelengthOfZeroIsTakenForOne)
{
    EXPECT_EQ(withPoints(2, 0, 50).alpha(), withPoints(2, 1, 50).alpha());
    EXPECT_NEAR(withPoints(2, 0, 50).alpha(), 3698.8, 0.1);
}

TEST(BSplineBase, WithoutWavelengthAndNodesThereAreTwoIntervalsAPoint)
{
    const BSplineBase<float> base = withPoints(7, 0, 0);
    ASSERT_TRUE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 14);
    EXPECT_NEAR(base.alpha(), std::pow(14 / 6.2831854, 4), 1e-9);
}

TEST(BSplineBase, TheIntervalsAreTheFewestWithFourNodesAWavelength)
{
    EXPECT_EQ(withPoints(101, 0.1, 0).nodeIntervals(), 40);
    EXPECT_EQ(withPoints(101, 0.15, 0).nodeIntervals(), 27);
    EXPECT_EQ(withPoints(101, 1, 0).nodeIntervals(), 10);
}

TEST(BSplineBase, FewPointsKeepTheIntervalsFew)
{
    const BSplineBase<float> base = withPoints(31, 0.1, 0);
    EXPECT_TRUE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 30);
    EXPECT_TRUE(withPoints(21, 0.1, 0).ok());
    EXPECT_FALSE(withPoints(20, 0.1, 0).ok());
    EXPECT_FALSE(withPoints(10, 1, 0).ok());
}

TEST(BSplineBase, AWavelengthBeyondTheSpanChoosesNoNodes)
{
    EXPECT_TRUE(withPoints(101, 1, 0).ok());
    EXPECT_FALSE(withPoints(101, 1.01, 0).ok());
    EXPECT_TRUE(withPoints(101, 1.01, 50).ok());
}

TEST(BSplineBase, PointsAboveEachOtherChooseNoNodes)
{
    const float x[] = {0.5F, 0.5F, 0.5F};
    const BSplineBase<float> base(x, 3, 0.005, 2, 50);
    EXPECT_FALSE(base.ok());
    EXPECT_EQ(base.nodeIntervals(), 0);
}

TEST(BSplineBase, AMatrixThatTheNodesLeaveSingularIsNotReady)
{
    // So short that its weight is nothing: 48 of the nodes hang in the air.
    EXPECT_FALSE(withPoints(2, 1e-90, 50).ok());
    EXPECT_FALSE(withPoints(2, std::numeric_limits<double>::infinity(), 50).ok());
}

TEST(BSplineBase, IsSilentByDefault)
{
    EXPECT_EQ(toldBy(false, [] { fitLine(6); }), "");
}

TEST(BSplineBase, DebuggingTellsEachStep)
{
    const std::string told = toldBy(true, [] { fitLine(6); });
    std::size_t from = 0;
    for (const char *text :
         {"Using M node intervals: 5 of length DX: 0.2\n", "X min: 0 ; X max: 1\n",
          "Data points per interval: ", "Nodes per wavelength: 1.25\n", "Derivative constraint degree: 2\n",
          "Cutoff wavelength: 0.25\n", "Alpha: ", "Calculating Q...\n", "Calculating P...\n", "Done.\n",
          "Array Q after addition of P.\n", "Beginning LU factoring of P+Q...\n", "LU factor of (P+Q) =\n", "Done.\n",
          "Mean for y: 0.5\n", "Solving for B...\n", "Solution a for (P+Q)a = b\n"}) {
        const std::size_t at = told.find(text, from);
        ASSERT_NE(at, std::string::npos) << text << " in\n" << told;
        from = at + std::string(text).size();
    }
}

TEST(BSplineBase, DebuggingPrintsSmallMatricesOnly)
{
    // 29 intervals are printed, 30 are not. Either way there is a line a coefficient.
    const std::string small = toldBy(true, [] { fitLine(30); });
    const std::string large = toldBy(true, [] { fitLine(31); });
    const auto lines = [](const std::string &text) { return std::count(text.begin(), text.end(), '\n'); };
    const auto matrices = (lines(small) - 30) - (lines(large) - 31);
    EXPECT_EQ(matrices, 3 * 30);
    EXPECT_NE(small.find("    0     0 "), std::string::npos);
}

TEST(BSplineBase, DebuggingTellsWhatFailed)
{
    const std::string singular = toldBy(true, [] { withPoints(2, 1e-90, 50); });
    EXPECT_NE(singular.find("LU_factor_banded() failed.\nFactoring failed.\n"), std::string::npos);

    const float x[] = {0, 1};
    const float y[] = {0, std::numeric_limits<float>::quiet_NaN()};
    const std::string unsolved = toldBy(true, [&] { const BSpline<float> spline(x, 2, y, 0.005, 2, 50); });
    EXPECT_NE(unsolved.find("LU_solve_banded() failed.\n"), std::string::npos);
    EXPECT_EQ(unsolved.find("Solution a"), std::string::npos);
}

} // namespace
