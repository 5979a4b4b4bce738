// SPDX-License-Identifier: MIT
#include "math/BandMatrix.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace grisal::math
{

BandMatrix::BandMatrix(int order) : m_rows(static_cast<std::size_t>(std::max(order, 0))) {}

double BandMatrix::at(int row, int column) const
{
    return std::abs(row - column) <= halfWidth ? element(row, column) : 0;
}

void BandMatrix::add(int row, int column, double value)
{
    m_rows[row][column - row + halfWidth] += value;
}

bool BandMatrix::factor()
{
    for (int k = 0; k < order(); ++k) {
        const double pivot = element(k, k);
        if (pivot == 0 || !std::isfinite(pivot)) {
            return false;
        }
        const int last = lastNear(k);
        for (int row = k + 1; row <= last; ++row) {
            double &multiplier = m_rows[row][k - row + halfWidth];
            multiplier /= pivot;
            for (int column = k + 1; column <= last; ++column) {
                add(row, column, -multiplier * element(k, column));
            }
        }
    }
    return true;
}

bool BandMatrix::solve(std::vector<double> &values) const
{
    if (values.size() != m_rows.size()) {
        return false;
    }
    for (int row = 0; row < order(); ++row) {
        for (int column = std::max(0, row - halfWidth); column < row; ++column) {
            values[row] -= element(row, column) * values[column];
        }
    }
    for (int row = order() - 1; row >= 0; --row) {
        for (int column = row + 1; column <= lastNear(row); ++column) {
            values[row] -= element(row, column) * values[column];
        }
        values[row] /= element(row, row);
    }
    return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

double BandMatrix::element(int row, int column) const
{
    return m_rows[row][column - row + halfWidth];
}

int BandMatrix::lastNear(int index) const
{
    return std::min(index + halfWidth, order() - 1);
}

} // namespace grisal::math
