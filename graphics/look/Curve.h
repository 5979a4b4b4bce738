// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/CurvePoints.h"

namespace grisal::graphics
{

/// How the points of a curve are connected: by a smooth line or by straight lines.
enum class CurveKind { Smooth, Straight };

/// The number of values of a curve that filters get.
constexpr int curveSamples = 256;

/// A curve as it is drawn in a panel. The values that a filter gets are computed from it.
struct Curve {
    CurvePoints points;
    CurveKind kind = CurveKind::Smooth;

    /// Returns `count` values of the curve: see smoothCurve() and linearCurve().
    QVector<float> sample(int count = curveSamples) const
    {
        return kind == CurveKind::Smooth ? smoothCurve(points, count) : linearCurve(points, count);
    }

    bool operator==(const Curve &) const = default;
};

} // namespace grisal::graphics
