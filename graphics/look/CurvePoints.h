// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

namespace grisal::graphics
{

/// The control points of a curve in the unit square, from left to right. x and y are in 0..1, y measured from the top
/// as on the screen. The values of the curve are measured from the bottom.
struct CurvePoints {
    QVector<float> xs{0.0F, 1.0F};
    QVector<float> ys{0.5F, 0.5F};

    int count() const { return static_cast<int>(xs.size()); }
    int last() const { return count() - 1; }

    bool operator==(const CurvePoints &) const = default;
};

/// The index of a point less than 0.02 away from `x`; -1 if there is none. If several points are that close, the first
/// pair of neighbours that contains one of them is used: the nearer point of the pair, the left one at equal distance.
int pointAt(const CurvePoints &points, float x);

/// Inserts a point in order of x and returns its index. To the right of the last point, nothing is inserted and -1 is
/// returned.
int insertPoint(CurvePoints &points, float x, float y);

/// Moves a point. The first and the last point move vertically only. The others also move horizontally, as long as they
/// stay more than 0.02 away from their neighbours.
void movePoint(CurvePoints &points, int index, float x, float y);

/// Removes a point and returns true. The first and the last point cannot be removed.
bool removePoint(CurvePoints &points, int index);

/// `count` values 0..1 of the straight lines between the points; value i is taken at i / count. The first line extends
/// to the left edge. To the right of the last point, or with only one point everywhere, the values have the height of
/// that point.
QVector<float> linearCurve(const CurvePoints &points, int count);

/// The same for the smooth curve through the points. Straight lines if there are too few points for a smooth curve.
QVector<float> smoothCurve(const CurvePoints &points, int count);

/// The tone histogram after the curve is applied: the count of bin i goes to bin i * (curve[i] / (i / 256)), truncated
/// to an integer. Bin 0 is ignored. Tones that the curve turns white are dropped, except for those that rounding puts
/// into the last bin. Curve and histogram have 256 elements; with another number of curve values, the histogram is
/// returned unchanged.
QVector<float> histogramBehind(const QVector<float> &curve, const QVector<float> &histogram);

} // namespace grisal::graphics
