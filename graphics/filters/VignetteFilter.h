// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/filters/VignetteParameters.h"
#include "graphics/gl/Textures.h"

namespace grisal::graphics
{

/// Darkens a picture I, 0..255, with the distance from a centre: (1 - v) * I + v * I^2 * 0.0039, times 0.0039, v being
/// vignetteValue(). A strength of 0 or less leaves the picture exactly as it is.
class VignetteFilter : public IFilter
{
public:
    VignetteFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// The program of the pass, compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program; }

    VignetteParameters parameters;
    float maxWidth = 0;  ///< width of the whole picture in pixels
    float maxHeight = 0; ///< height of the whole picture in pixels

private:
    FilterProgram m_program;
    Texture m_noiseTexture;
};

} // namespace grisal::graphics
