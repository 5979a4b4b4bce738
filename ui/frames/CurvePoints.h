// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

/// The control points of a curve in the unit square, from the left to the right. x and y count 0..1, y from the top
/// downwards as on the screen; the values of the curve count upwards.
struct CurvePoints {
    QVector<float> xs{0.0F, 1.0F};
    QVector<float> ys{0.5F, 0.5F};

    int count() const { return static_cast<int>(xs.size()); }
    int last() const { return count() - 1; }
};

/// The index of the point in whose column `x` lies, less than 0.02 away; -1 where there is none. Of several, the first
/// pair of neighbours with one of them decides, for its nearer point and for the left one at equal distance.
int pointAt(const CurvePoints &points, float x);

/// Puts a point between its neighbours and returns its index; -1, and no point, to the right of the last one.
int insertPoint(CurvePoints &points, float x, float y);

/// Moves a point. One at an end goes up and down only, the others sideways too, as long as they stay more than 0.02
/// away from their neighbours.
void movePoint(CurvePoints &points, int index, float x, float y);

/// Removes a point and returns true, but leaves the ones at both ends.
bool removePoint(CurvePoints &points, int index);

/// `count` values 0..1 of the straight lines between the points, value i taken at i / count. The first line goes on to
/// the left; to the right of the last point they stay at its height, as they do everywhere if there is but one.
QVector<float> linearCurve(const CurvePoints &points, int count);

/// The same of the smooth curve through the points; of the straight lines where there are too few points for one.
QVector<float> smoothCurve(const CurvePoints &points, int count);

/// The tone histogram behind a curve: what `histogram` counts in bin i goes to bin i * (curve[i] / (i / 256)), cut to a
/// whole number. Bin 0 is left out, and tones that the curve makes white fall out of it, but for those that rounding
/// leaves in the last bin. Both have 256 elements; with another number of curve values the histogram comes back as it
/// is.
QVector<float> histogramBehind(const QVector<float> &curve, const QVector<float> &histogram);
