// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace grisal::math
{

/// A square band matrix: only the diagonal and three bands on either side of it may be nonzero. It solves linear
/// systems in a time that grows linearly with its order. Elements are double precision; rows and columns are counted
/// from 0.
class BandMatrix
{
public:
    /// The number of bands above and below the diagonal.
    static constexpr int halfWidth = 3;

    /// Creates a matrix of `order` rows and columns, all zero.
    explicit BandMatrix(int order = 0);

    int order() const { return static_cast<int>(m_rows.size()); }

    /// Returns any element of the matrix or, after factor(), of its factors. Elements outside the bands are 0.
    double at(int row, int column) const;

    /// Adds `value` to an element, which must lie within the bands: |row - column| <= halfWidth.
    void add(int row, int column, double value);

    /// Replaces the matrix by its factors: L below the diagonal, whose own diagonal is 1 and not stored, and U on and
    /// above the diagonal. It does not pivot, so that the factors stay within the bands. Returns false if a pivot is
    /// zero or not finite; the matrix is then unusable.
    bool factor();

    /// Solves L U a = `values` after factor(), and replaces `values`, one value per row, by a. Returns false if the
    /// number of values is not the order of the matrix or if the solution is not finite.
    bool solve(std::vector<double> &values) const;

private:
    static constexpr std::size_t width = 2 * halfWidth + 1;

    double element(int row, int column) const;
    int lastNear(int index) const;

    std::vector<std::array<double, width>> m_rows;
};

} // namespace grisal::math
