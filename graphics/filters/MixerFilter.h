// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/ColorRGB.h"
#include "graphics/filters/FilterDeclaration.h"
#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"

namespace grisal::graphics
{

/// Converts colour to grey: r * weights.r + g * weights.g + b * weights.b in all three channels, alpha 1.
class MixerFilter : public IFilter
{
public:
    struct Parameters {
        ColorRGB<float> weights{1.0F / 3, 1.0F / 3, 1.0F / 3}; ///< multipliers of the channels
    };
    static const FilterDeclaration<Parameters> &declaration();

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
