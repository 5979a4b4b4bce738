// SPDX-License-Identifier: MIT
#include "graphics/look/CurvePoints.h"

#include "math/BSpline.h"

#include <algorithm>
#include <cmath>

namespace grisal::graphics
{

namespace
{

constexpr double reach = 0.02;
constexpr int bins = 256;

// These three constants determine how closely the smooth curve follows its points.
constexpr double cutoffWavelength = 0.005;
constexpr int straightEnds = 2;
constexpr int nodeCount = 50;

float positionOf(int sample, int count)
{
    return static_cast<float>(sample) / static_cast<float>(count);
}

float upwards(float y)
{
    return std::clamp(1.0F - y, 0.0F, 1.0F);
}

float lineAt(const CurvePoints &points, float x)
{
    for (int right = 1; right < points.count(); ++right) {
        if (x > points.xs[right]) {
            continue;
        }
        const int left = right - 1;
        const float distance = points.xs[right] - points.xs[left];
        const float share = distance > 0 ? (x - points.xs[left]) / distance : 0;
        return (1 - share) * points.ys[left] + share * points.ys[right];
    }
    return points.count() > 0 ? points.ys.last() : 0;
}

} // namespace

int pointAt(const CurvePoints &points, float x)
{
    for (int left = 0; left < points.last(); ++left) {
        const float fromLeft = std::abs(x - points.xs[left]);
        const float fromRight = std::abs(points.xs[left + 1] - x);
        if (fromLeft < reach || fromRight < reach) {
            return fromLeft <= fromRight ? left : left + 1;
        }
    }
    return -1;
}

int insertPoint(CurvePoints &points, float x, float y)
{
    const auto next = std::find_if(points.xs.begin(), points.xs.end(), [x](float other) { return other > x; });
    if (next == points.xs.end()) {
        return -1;
    }
    const auto index = static_cast<int>(next - points.xs.begin());
    points.xs.insert(index, x);
    points.ys.insert(index, y);
    return index;
}

void movePoint(CurvePoints &points, int index, float x, float y)
{
    points.ys[index] = y;
    const bool inner = index > 0 && index < points.last();
    if (inner && x - points.xs[index - 1] > reach && points.xs[index + 1] - x > reach) {
        points.xs[index] = x;
    }
}

bool removePoint(CurvePoints &points, int index)
{
    if (index < 1 || index >= points.last()) {
        return false;
    }
    points.xs.removeAt(index);
    points.ys.removeAt(index);
    return true;
}

QVector<float> linearCurve(const CurvePoints &points, int count)
{
    QVector<float> values;
    values.reserve(count);
    for (int i = 0; i < count; ++i) {
        values << upwards(lineAt(points, positionOf(i, count)));
    }
    return values;
}

QVector<float> smoothCurve(const CurvePoints &points, int count)
{
    const math::BSpline<float> curve(points.xs.constData(), points.count(), points.ys.constData(), cutoffWavelength,
                                     straightEnds, nodeCount);
    if (!curve.ok()) {
        return linearCurve(points, count);
    }
    QVector<float> values;
    values.reserve(count);
    for (int i = 0; i < count; ++i) {
        const float x = positionOf(i, count);
        values << upwards(x > points.xs.last() ? points.ys.last() : curve.evaluate(x));
    }
    return values;
}

// For i = 0 the bin position is NaN, which fails the comparison, so that the bin is left out.
QVector<float> histogramBehind(const QVector<float> &curve, const QVector<float> &histogram)
{
    if (curve.size() != bins) {
        return histogram;
    }
    QVector<float> behind(curve.size(), 0.0F);
    for (int i = 0; i < bins; ++i) {
        const double place = i * (curve[i] / (i * 0.00390625));
        if (place < static_cast<double>(histogram.size())) {
            behind[static_cast<int>(place)] += histogram[i];
        }
    }
    return behind;
}

} // namespace grisal::graphics
