// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/look/MixerFilterParameters.h"

namespace grisal::graphics
{

/// Converts colour to grey: r * weights.r + g * weights.g + b * weights.b in all three channels, alpha 1.
class MixerFilter : public IFilter
{
public:
    using Parameters = MixerFilterParameters;
    static const FilterDeclaration<Parameters> &declaration() { return Parameters::declaration(); }

    MixerFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    void setParameters(const Parameters &wanted) { weights = wanted.weights; }

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    /// Multipliers of the channels, not normalised: a sum above 1 brightens, a sum of 1 leaves grey pixels unchanged.
    /// Colour images have no neutral value.
    ColorRGB<float> weights;

private:
    FilterProgram m_program;
};

} // namespace grisal::graphics
