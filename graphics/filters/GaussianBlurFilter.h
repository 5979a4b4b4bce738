// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IFilter.h"
#include "graphics/shader/ShaderProgram.h"

namespace grisal::graphics
{

/// Separable blur in two passes, along x and then along y, with n = 4 * ceil(radius) + 1 taps each: the tap at offset
/// x, -h..h with h = 2 * ceil(radius), weighs exp(-x * x / (1.141 * radius)) over the sum of all weights. Edges are
/// mirrored. A radius of 0 or less copies.
class GaussianBlurFilter : public IFilter
{
public:
    /// Passes have passWidth x passHeight pixels; the GL enums are those of the target between the two passes.
    GaussianBlurFilter(float initialSigma, float initialScale, int passWidth, int passHeight, GLenum internalFormat,
                       GLenum format, GLenum type);

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// The programs of the two passes; alongX() is the first.
    const ShaderProgram &alongX() const { return m_alongX; }
    const ShaderProgram &alongY() const { return m_alongY; }

    float sigma;      ///< sent to the programs, which go by the radius alone
    float scale;      ///< kept, used by nothing
    float radius = 0; ///< pixels

private:
    void blur(const ShaderProgram &program, GLuint sourceTexture, const FramebufferObject &target) const;

    RenderTarget m_intermediate;
    ShaderProgram m_alongY;
    ShaderProgram m_alongX;
};

} // namespace grisal::graphics
