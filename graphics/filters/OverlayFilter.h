// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"

namespace grisal::graphics
{

/// Darkens a picture I by a grey mask m: (1 - m) * I + m * I^2 * 0.0039 on a scale of 0..255, times 0.0039.
/// A mask of 0 leaves a pixel as it is but for the factor 255 * 0.0039 = 0.9945; there is no neutral value.
class OverlayFilter : public IFilter
{
public:
    OverlayFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// The program of the pass, compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    GLuint overlayTexture = 0; ///< the mask, in its red channel; owned by whoever sets it

private:
    FilterProgram m_program;
};

} // namespace grisal::graphics
