// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/look/HalfToneFilterParameters.h"

namespace grisal::graphics
{

/// Split toning of a grey image i. With h = i * weight, s = (1 - h)^2 and o = 1 - h - s the result is
/// overlay(i, firstColor) * h + overlay(i, secondColor) * s + i * o, where
/// overlay(I, M) = (I * 0.0039) * (I + (M * 2 * 0.0039) * (255 - I)) * 0.0039 on a scale of 0..255.
class HalfToneFilter : public IFilter
{
public:
    using Parameters = HalfToneFilterParameters;
    static const FilterDeclaration<Parameters> &declaration() { return Parameters::declaration(); }

    HalfToneFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    void setParameters(const Parameters &wanted);

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    float weight = 1;            ///< share of the highlights; 0 tints everything with secondColor
    ColorRGB<float> firstColor;  ///< tint of the highlights, 0..1
    ColorRGB<float> secondColor; ///< tint of the shadows, 0..1

private:
    FilterProgram m_program;
};

} // namespace grisal::graphics
