// SPDX-License-Identifier: MIT
#pragma once

#include "math/BandMatrix.h"

#include <vector>

namespace grisal::math
{

/// What a smoothing cubic B-spline takes from the x values alone: its nodes and the factored matrix of its normal
/// equations. BSpline adds the y values.
///
/// M intervals of the width DX = (xmax - xmin) / M lie between M + 1 evenly spaced nodes. With z the distance of x from
/// node m in units of DX, the basis function of the node is
///
///     b(z) = (2 - z)^3 / 4 - (1 - z)^3    0 <= z < 1
///     b(z) = (2 - z)^3 / 4                1 <= z < 2
///     b(z) = 0                            elsewhere.
///
/// The two outermost nodes on either side also carry a share of a phantom node beyond the end, which imposes the
/// boundary condition. The matrix of the normal equations is P + Q, where P[m][n] is the sum of b_m(x) b_n(x) over the
/// data points and Q[m][n] is alpha times the integral of b_m'' b_n'' over the nodes' range in units of DX, with
/// alpha = (wavelength / (2 pi DX))^4: waves much shorter than the cutoff wavelength are smoothed away. With fewer than
/// six intervals the boundary blocks of both ends overlap, and the smoothing is approximate.
///
/// The matrix may have a condition number of 1e10 where there are few points to many nodes, which is why it is kept in
/// double precision whatever T is. The cost is linear in points and nodes. Instantiated for float.
template <typename T>
class BSplineBase
{
public:
    /// `x` points to `nx` values in any order, which are copied. `wavelength` is the cutoff wavelength in units of x,
    /// at least 0; 0 stands for 1. `boundaryType` is 0 for a zero value, 1 for a zero slope, 2 for a zero second
    /// derivative at the ends. `numNodes` is M + 1; below 2, M follows from the points and the wavelength.
    ///
    /// ok() is false afterwards without x values, with an argument out of its range, with values that are not finite,
    /// with fewer than two different x values, if there are too few points for M to be chosen, or if the matrix is
    /// singular.
    BSplineBase(const T *x, int nx, double wavelength, int boundaryType, int numNodes);
    virtual ~BSplineBase() = default;

    bool ok() const { return m_ready; }

    /// M, the number of intervals between the nodes; 0 if none could be chosen.
    int nodeIntervals() const { return m_intervals; }

    /// DX, in units of x.
    double nodeSpacing() const { return m_spacing; }

    /// The weight of the smoothing.
    double alpha() const { return m_alpha; }

    /// Whether splines describe their work on the standard error stream. Off by default; meant to be set before any
    /// spline is made.
    static void setDebug(bool on);

protected:
    /// The nodes that matter at some x, from `first` to `last`; none if `first` is greater.
    struct NodeRange {
        int first = 0;
        int last = -1;
    };

    NodeRange nodesNear(double x) const;
    double basis(int node, double x) const;

    const std::vector<T> &xValues() const { return m_x; }
    const BandMatrix &factors() const { return m_matrix; }
    void setNotReady() { m_ready = false; }
    static bool debug();

private:
    bool copyPoints(const T *x, int nx);
    bool chooseNodes(int numNodes);
    int searchedIntervals() const;
    double span() const;

    double boundaryWeight(int node) const;
    double plainBasis(int node, double x) const;
    double penaltyElement(int node, int otherNode) const;

    void addPenalty();
    void addLeftBoundary();
    void addRightBoundary();
    void addSymmetric(int row, int column, double value);
    void addPoints();
    bool factor();

    void reportNodes() const;
    void reportMatrix() const;

    double m_wavelength = 0;
    std::vector<T> m_x;
    T m_xMin = 0;
    T m_xMax = 0;
    int m_intervals = 0;
    double m_spacing = 0;
    int m_boundaryType = 0;
    double m_alpha = 0;
    BandMatrix m_matrix;
    bool m_ready = false;

    static bool s_debug;
};

extern template class BSplineBase<float>;

} // namespace grisal::math
