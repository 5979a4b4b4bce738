// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/FilterDeclaration.h"

#include <QVector>

namespace grisal::graphics
{

struct CurveFilterParameters {
    QVector<float> curve = identity(); ///< 256 samples 0..1; sample i is the output for grey i / 256

    static QVector<float> identity();
    static const FilterDeclaration<CurveFilterParameters> &declaration();
};

inline QVector<float> CurveFilterParameters::identity()
{
    constexpr int samples = 256;
    QVector<float> curve(samples);
    for (int i = 0; i < samples; ++i) {
        curve[i] = static_cast<float>(i) / samples;
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
