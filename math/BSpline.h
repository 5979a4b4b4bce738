// SPDX-License-Identifier: MIT
#pragma once

#include "math/BSplineBase.h"

#include <vector>

namespace grisal::math
{

/// A smooth curve through or near given points: the cubic B-spline that minimises the squares of its distances from
/// the points in y plus alpha times the square of its second derivative (see BSplineBase), about the mean of the y
/// values. Where the cutoff wavelength is short against the distance of the nodes and no more points than nodes lie
/// anywhere, it passes through the points. Instantiated for float.
///
///     BSpline<float> curve(x, nx, y, 0.005, 2, 50);
///     float value = curve.evaluate(0.5F);
template <typename T>
class BSpline : public BSplineBase<T>
{
public:
    /// `y` points to `nx` values; it is not kept. The others are those of BSplineBase. ok() is false afterwards if it
    /// would be for BSplineBase, without y values, or if the solution is not finite; nothing else tells of a failure.
    BSpline(const T *x, int nx, const T *y, double wavelength, int boundaryType, int numNodes);

    /// The curve at `x`; 0 if ok() is false. Beyond the ends the basis functions run out within three intervals, and
    /// the mean of the y values remains.
    T evaluate(T x) const;

private:
    bool solve(const T *y);

    std::vector<T> m_coefficients;
    T m_mean = 0;
};

extern template class BSpline<float>;

} // namespace grisal::math
