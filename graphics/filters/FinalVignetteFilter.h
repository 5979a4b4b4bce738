// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/gl/Textures.h"
#include "graphics/look/VignetteParameters.h"

namespace grisal::graphics
{

/// Draws a vignette as a separate mask: (v, v, v, 0) with v = vignetteValue() for an image of width x height pixels.
/// apply() ignores its source texture.
class FinalVignetteFilter : public IFilter
{
public:
    FinalVignetteFilter();

    /// Draws the whole mask.
    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    /// Draws partWidth x partHeight pixels of the mask, starting at pixel (x, y). `width` and `height` remain the size
    /// of the whole mask; its centre is moved instead. The moved centre is rounded to single precision, so some values
    /// differ from those of the whole mask in their last bits.
    void applyPart(int x, int y, int partWidth, int partHeight, const FramebufferObject &target);

    VignetteParameters parameters;
    float maxWidth = 0;  ///< passed to the shader, which ignores it and uses width
    float maxHeight = 0; ///< passed to the shader, which ignores it and uses height

private:
    FilterProgram m_program;
};

} // namespace grisal::graphics
