// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"
#include "graphics/filters/VignetteParameters.h"
#include "graphics/gl/Textures.h"

namespace grisal::graphics
{

/// Draws a vignette as a mask of its own: (v, v, v, 0) with v = vignetteValue() for width x height. The source
/// texture of apply() is not read.
class FinalVignetteFilter : public IFilter
{
public:
    FinalVignetteFilter();

    /// The whole mask.
    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// The program of the pass, compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    /// The partWidth x partHeight pixels of the mask whose first is (x, y), in pixels: the whole mask with its centre
    /// moved, `width` and `height` being the size of the whole. The moved centre is rounded to a float, so that some
    /// values differ from those of the whole in their last bits.
    void applyPart(int x, int y, int partWidth, int partHeight, const FramebufferObject &target);

    VignetteParameters parameters;
    float maxWidth = 0;  ///< sent, but the mask goes by width and height
    float maxHeight = 0; ///< as maxWidth

private:
    FilterProgram m_program;
};

} // namespace grisal::graphics
