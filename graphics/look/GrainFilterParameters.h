// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Curve.h"
#include "graphics/look/FilterDeclaration.h"

#include <QVector>

namespace grisal::graphics
{

struct GrainFilterParameters {
    QVector<float> weights = QVector<float>(curveSamples, 0.0F); ///< 256 strengths 0..1; sample i is for grey i / 256
    float radius = 1.5F;                                         ///< blur radius of the noise in pixels: the coarseness

    /// The strength with which the panel starts: half in the middle tones, none in black and white.
    static Curve defaultStrength() { return {{{0.0F, 0.5F, 1.0F}, {1.0F, 0.5F, 1.0F}}, CurveKind::Straight}; }
    bool operator==(const GrainFilterParameters &) const = default;
    static const FilterDeclaration<GrainFilterParameters> &declaration();
};

inline const FilterDeclaration<GrainFilterParameters> &GrainFilterParameters::declaration()
{
    using Parameters = GrainFilterParameters;
    static const FilterDeclaration<Parameters> declared{
        .name = "GrainFilter",
        .parameters = {{"weights", "1", 0, 1, 0.0F, [](Parameters &p) { return std::span(p.weights); }},
                       {"radius", "px", 0, 3, std::nullopt, [](Parameters &p) { return std::span(&p.radius, 1); }}}};
    return declared;
}

} // namespace grisal::graphics
