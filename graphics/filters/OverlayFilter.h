// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/IFilter.h"

namespace grisal::graphics
{

/// Darkens an image I by a grey mask m: (1 - m) * I + m * I^2 * 0.0039 on a scale of 0..255, times 0.0039. There is no
/// neutral value: a mask of 0 multiplies a pixel by 255 * 0.0039 = 0.9945.
class OverlayFilter : public IFilter
{
public:
    OverlayFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    GLuint overlayTexture = 0; ///< the mask, in its red channel; not owned

private:
    FilterProgram m_program;
};

} // namespace grisal::graphics
