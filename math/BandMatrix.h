// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace grisal::math
{

/// A square matrix that is zero but for its diagonal and three bands on either side of it, with the solution of linear
/// systems in a time that grows linearly with its order. Elements are double precision; rows and columns count from 0.
class BandMatrix
{
public:
    /// The number of bands above and below the diagonal.
    static constexpr int halfWidth = 3;

    /// A matrix of `order` rows and columns, all zero.
    explicit BandMatrix(int order = 0);

    int order() const { return static_cast<int>(m_rows.size()); }

    /// Any element of the matrix, or, once it is factored, of its factors. Zero outside the bands.
    double at(int row, int column) const;

    /// Adds to an element. It must lie within the bands: |row - column| <= halfWidth.
    void add(int row, int column, double value);

    /// Replaces the matrix by its factors: L below the diagonal, whose own diagonal is 1 and not kept, and U on and
    /// above it. There is no pivoting, so that the factors keep to the bands. Returns false on a pivot that is zero or
    /// not finite; the matrix is then spoilt.
    bool factor();

    /// Solves L U a = `values` for a matrix that has been factored, and puts a in the place of `values`, which holds
    /// one value a row. Returns false if it does not, or if the solution is not finite.
    bool solve(std::vector<double> &values) const;

private:
    static constexpr std::size_t width = 2 * halfWidth + 1;

    double element(int row, int column) const;
    int lastNear(int index) const;

    std::vector<std::array<double, width>> m_rows;
};

} // namespace grisal::math
