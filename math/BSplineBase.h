// SPDX-License-Identifier: MIT
#pragma once

#include "math/BandMatrix.h"

#include <vector>

namespace grisal::math
{

/// The part of a smoothing cubic B-spline that depends only on the x values: its nodes and the factored matrix of its
/// normal equations. BSpline adds the y values.
///
/// M intervals of width DX = (xmax - xmin) / M lie between M + 1 evenly spaced nodes. With z the distance of x from
/// node m in units of DX, the basis function of the node is
///
///     b(z) = (2 - z)^3 / 4 - (1 - z)^3    0 <= z < 1
///     b(z) = (2 - z)^3 / 4                1 <= z < 2
///     b(z) = 0                            elsewhere.
///
/// The basis functions of the two outermost nodes on either side also contain a share of a phantom node beyond the end,
/// which imposes the boundary condition. The matrix of the normal equations is P + Q, where P[m][n] is the sum of
/// b_m(x) b_n(x) over the data points and Q[m][n] is alpha times the integral of b_m'' b_n'' over the nodes' range in
/// units of DX, with alpha = (wavelength / (2 pi DX))^4: waves much shorter than the cutoff wavelength are smoothed
/// away. With fewer than six intervals the boundary blocks of both ends overlap, and the smoothing is approximate.
///
/// The matrix is stored in double precision whatever T is, because its condition number may reach 1e10 if there are
/// many nodes and few points. The cost is linear in points and nodes.
template <typename T>
class BSplineBase
{
public:
    /// `x` points to `nx` values in any order, which are copied. `wavelength` is the cutoff wavelength in units of x,
    /// at least 0; 0 means 1. `boundaryType` is 0 for a zero value, 1 for a zero slope, 2 for a zero second derivative
    /// at the ends. `numNodes` is M + 1; if it is below 2, M is chosen from the points and the wavelength.
    ///
    /// Afterwards ok() is false if there are no x values, if an argument is out of its range, if a value is not finite,
    /// if there are fewer than two different x values, if there are too few points to choose M, or if the matrix is
    /// singular.
    BSplineBase(const T *x, int nx, double wavelength, int boundaryType, int numNodes);
    virtual ~BSplineBase() = default;

    bool ok() const { return m_ready; }

    /// Returns M, the number of intervals between the nodes; 0 if none could be chosen.
    int nodeIntervals() const { return m_intervals; }

    /// Returns DX, in units of x.
    double nodeSpacing() const { return m_spacing; }

    /// Returns alpha, the weight of the smoothing.
    double alpha() const { return m_alpha; }

    /// Sets whether splines log their computation to the standard error stream. Off by default; to be set before any
    /// spline is created.
    static void setDebug(bool on);

protected:
    /// The nodes whose basis functions contribute at some x, from `first` to `last`; none if `first` is greater.
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
