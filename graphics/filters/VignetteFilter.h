// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/gl/Textures.h"
#include "graphics/look/VignetteFilterParameters.h"

namespace grisal::graphics
{

/// Darkens an image I with the distance from a centre: (1 - v) * I + v * I^2 * 0.0039 on a scale of 0..255, times
/// 0.0039, with v = vignetteValue(). A strength of 0 or less leaves the image exactly as it is.
class VignetteFilter : public IFilter
{
public:
    using Parameters = VignetteFilterParameters;
    static const FilterDeclaration<Parameters> &declaration() { return Parameters::declaration(); }

    VignetteFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    void setParameters(const Parameters &wanted) { parameters = wanted.shape; }

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    VignetteParameters parameters;
    float maxWidth = 0;  ///< width of the whole image in pixels
    float maxHeight = 0; ///< height of the whole image in pixels

private:
    FilterProgram m_program;
    Texture m_noiseTexture;
};

} // namespace grisal::graphics
