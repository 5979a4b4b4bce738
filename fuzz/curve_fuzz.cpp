// SPDX-License-Identifier: MIT
//
// For any points, also such as no mouse can set, every curve through them has values within 0..1.
#include "graphics/look/CurvePoints.h"
#include "math/BSpline.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using namespace grisal::graphics;

namespace
{

constexpr int sampleCount = 256;
constexpr std::size_t mostPoints = 64;

void requireWithinFrame(const QVector<float> &values)
{
    for (const float value : values) {
        // NaN in the points leads to NaN in the values.
        if (!std::isnan(value) && !(value >= 0 && value <= 1)) {
            std::abort();
        }
    }
}

CurvePoints pointsOf(const std::uint8_t *data, std::size_t size)
{
    CurvePoints points{{}, {}};
    for (std::size_t i = 0; i + 8 <= size && i / 8 < mostPoints; i += 8) {
        float place[2];
        std::memcpy(place, data + i, sizeof place);
        points.xs << place[0];
        points.ys << place[1];
    }
    return points;
}

void evaluateAnySpline(const CurvePoints &points, std::uint8_t kind, std::uint8_t nodes)
{
    const grisal::math::BSpline<float> curve(points.xs.constData(), points.count(), points.ys.constData(), kind / 64.0,
                                             kind % 4, nodes);
    for (const float x : points.xs) {
        const float value = curve.evaluate(x);
        if (!curve.ok() && value != 0) {
            std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2) {
        return 0;
    }
    const CurvePoints points = pointsOf(data + 2, size - 2);
    requireWithinFrame(linearCurve(points, sampleCount));
    const QVector<float> smooth = smoothCurve(points, sampleCount);
    requireWithinFrame(smooth);
    histogramBehind(smooth, QVector<float>(sampleCount, 1.0F));
    evaluateAnySpline(points, data[0], data[1]);
    return 0;
}
