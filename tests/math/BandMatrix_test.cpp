// SPDX-License-Identifier: MIT
#include "math/BandMatrix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace
{

using namespace grisal::math;

BandMatrix symmetricThree()
{
    //  4  2  2
    //  2  5  3
    //  2  3  6
    BandMatrix matrix(3);
    matrix.add(0, 0, 4);
    matrix.add(1, 1, 5);
    matrix.add(2, 2, 6);
    for (const auto &[row, column, value] : {std::array{0, 1, 2}, std::array{0, 2, 2}, std::array{1, 2, 3}}) {
        matrix.add(row, column, value);
        matrix.add(column, row, value);
    }
    return matrix;
}

TEST(BandMatrix, IsZeroInitiallyAndOutsideTheBands)
{
    BandMatrix matrix(6);
    EXPECT_EQ(matrix.order(), 6);
    EXPECT_EQ(matrix.at(2, 5), 0);
    EXPECT_EQ(matrix.at(0, 5), 0);
    matrix.add(2, 5, 1.5);
    matrix.add(2, 5, 2);
    EXPECT_EQ(matrix.at(2, 5), 3.5);
    EXPECT_EQ(matrix.at(5, 2), 0);
}

TEST(BandMatrix, FactorsMatchAManualCalculation)
{
    BandMatrix matrix = symmetricThree();
    ASSERT_TRUE(matrix.factor());
    EXPECT_DOUBLE_EQ(matrix.at(0, 0), 4);
    EXPECT_DOUBLE_EQ(matrix.at(0, 2), 2);
    EXPECT_DOUBLE_EQ(matrix.at(1, 0), 0.5);
    EXPECT_DOUBLE_EQ(matrix.at(2, 0), 0.5);
    EXPECT_DOUBLE_EQ(matrix.at(1, 1), 4);
    EXPECT_DOUBLE_EQ(matrix.at(1, 2), 2);
    EXPECT_DOUBLE_EQ(matrix.at(2, 1), 0.5);
    EXPECT_DOUBLE_EQ(matrix.at(2, 2), 4);
}

TEST(BandMatrix, SolvesASymmetricSystem)
{
    BandMatrix matrix = symmetricThree();
    ASSERT_TRUE(matrix.factor());
    std::vector<double> values = {4 - 4 + 6, 2 - 10 + 9, 2 - 6 + 18};
    ASSERT_TRUE(matrix.solve(values));
    EXPECT_DOUBLE_EQ(values[0], 1);
    EXPECT_DOUBLE_EQ(values[1], -2);
    EXPECT_DOUBLE_EQ(values[2], 3);
}

TEST(BandMatrix, SolvesAnAsymmetricFullBand)
{
    constexpr int order = 12;
    BandMatrix matrix(order);
    std::vector<double> values(order);
    for (int row = 0; row < order; ++row) {
        for (int column = std::max(0, row - 3); column <= std::min(order - 1, row + 3); ++column) {
            const double element = row == column ? 20 : 1 + row * 0.3 - column * 0.7;
            matrix.add(row, column, element);
            values[row] += element * (column + 1);
        }
    }
    ASSERT_TRUE(matrix.factor());
    ASSERT_TRUE(matrix.solve(values));
    for (int row = 0; row < order; ++row) {
        EXPECT_NEAR(values[row], row + 1, 1e-12);
    }
}

TEST(BandMatrix, FactoringFailsForZeroOrNonFinitePivot)
{
    BandMatrix exchange(2);
    exchange.add(0, 1, 1);
    exchange.add(1, 0, 1);
    EXPECT_FALSE(exchange.factor());

    BandMatrix zero(1);
    EXPECT_FALSE(zero.factor());

    BandMatrix infinite(1);
    infinite.add(0, 0, std::numeric_limits<double>::infinity());
    EXPECT_FALSE(infinite.factor());
}

TEST(BandMatrix, SolvingFailsForWrongSizeOrNonFiniteValues)
{
    BandMatrix matrix = symmetricThree();
    ASSERT_TRUE(matrix.factor());
    std::vector<double> tooFew(2, 1);
    EXPECT_FALSE(matrix.solve(tooFew));
    std::vector<double> notFinite = {1, std::numeric_limits<double>::quiet_NaN(), 1};
    EXPECT_FALSE(matrix.solve(notFinite));
}

} // namespace
