// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Curve.h"
#include "graphics/look/FilterDeclaration.h"

#include <QVector>

namespace grisal::graphics
{

struct CurveFilterParameters {
    QVector<float> curve = identity(); ///< 256 samples 0..1; sample i is the output for grey i / 256

    static QVector<float> identity();
    /// The curve with which the panel starts: a straight line from black to white with a point in the middle.
    static Curve defaultCurve() { return {{{0.0F, 0.5F, 1.0F}, {1.0F, 0.5F, 0.0F}}, CurveKind::Smooth}; }
    bool operator==(const CurveFilterParameters &) const = default;
    static const FilterDeclaration<CurveFilterParameters> &declaration();
};

inline QVector<float> CurveFilterParameters::identity()
{
    QVector<float> curve(curveSamples);
    for (int i = 0; i < curveSamples; ++i) {
        curve[i] = static_cast<float>(i) / curveSamples;
    }
    return curve;
}

inline const FilterDeclaration<CurveFilterParameters> &CurveFilterParameters::declaration()
{
    using Parameters = CurveFilterParameters;
    static const FilterDeclaration<Parameters> declared{
        .name = "CurveFilter",
        .parameters = {{"curve", "1", 0, 1, std::nullopt, [](Parameters &p) { return std::span(p.curve); }}}};
    return declared;
}

} // namespace grisal::graphics
