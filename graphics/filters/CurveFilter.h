// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/gl/Textures.h"
#include "graphics/look/CurveFilterParameters.h"

#include <QVector>

namespace grisal::graphics
{

/// Applies a tone curve to a grey image: the curve sample nearest to the red channel, clamped to 0..0.999, is written
/// to all four channels, alpha included. Before the first setCurve() the pass reads texture 0.
class CurveFilter : public IFilter
{
public:
    using Parameters = CurveFilterParameters;
    static const FilterDeclaration<Parameters> &declaration() { return Parameters::declaration(); }

    CurveFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// Uploads the curve if it differs from the current one. The context must be current.
    void setParameters(const Parameters &wanted);

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    /// Uploads the output values 0..1 for evenly spaced grey values; the curves panel provides 256 of them. Sample i of
    /// the straight curve is i / 256, so an 8-bit target stores grey levels above 128 one level darker. The context
    /// must be current.
    void setCurve(const QVector<float> &values);

    const QVector<float> &curve() const { return m_curve; }
    GLuint curveTexture() const { return m_curveTexture.name(); }

private:
    FilterProgram m_program;
    Texture m_curveTexture;
    QVector<float> m_curve;
};

} // namespace grisal::graphics
