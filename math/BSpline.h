// SPDX-License-Identifier: MIT
#pragma once

#include "math/BSplineBase.h"

#include <vector>

namespace grisal::math
{

/// A smooth curve through or near given points. Relative to the mean of the y values, it is the cubic B-spline that
/// minimises the sum of its squared distances from the points in y plus alpha times the integral of its squared second
/// derivative (see BSplineBase). It passes through the points if the cutoff wavelength is short compared to the node
/// spacing and no part of the range has more points than nodes. Instantiated for float.
///
///     BSpline<float> curve(x, nx, y, 0.005, 2, 50);
///     float value = curve.evaluate(0.5F);
template <typename T>
class BSpline : public BSplineBase<T>
{
public:
    /// `y` points to `nx` values, which are not kept. The other parameters are those of BSplineBase. Afterwards ok() is
    /// false if it would be for BSplineBase, if there are no y values, or if the solution is not finite; failures are
    /// reported only by ok().
    BSpline(const T *x, int nx, const T *y, double wavelength, int boundaryType, int numNodes);

    /// Returns the value of the curve at `x`, or 0 if ok() is false. Beyond the ends the basis functions become 0
    /// within three intervals, and only the mean of the y values remains.
    T evaluate(T x) const;

private:
    bool solve(const T *y);

    std::vector<T> m_coefficients;
    T m_mean = 0;
};

extern template class BSpline<float>;

} // namespace grisal::math
