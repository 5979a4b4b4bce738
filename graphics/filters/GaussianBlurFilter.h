// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IFilter.h"
#include "graphics/shader/ShaderProgram.h"

namespace grisal::graphics
{

/// Separable blur in two passes, along x and then along y, with 4 * ceil(radius) + 1 taps each. The tap at offset x,
/// -h..h with h = 2 * ceil(radius), has the weight exp(-x * x / (1.141 * radius)), divided by the sum of all weights.
/// Edges are mirrored. A radius of 0 or less copies the image.
class GaussianBlurFilter : public IFilter
{
public:
    /// The passes have passWidth x passHeight pixels. The OpenGL formats are those of the intermediate target between
    /// the two passes.
    GaussianBlurFilter(float initialSigma, float initialScale, int passWidth, int passHeight, GLenum internalFormat,
                       GLenum format, GLenum type);

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// Returns the programs of the two passes; alongX() is the first pass.
    const ShaderProgram &alongX() const { return m_alongX; }
    const ShaderProgram &alongY() const { return m_alongY; }

    float sigma;      ///< passed to the shaders, which use only the radius
    float scale;      ///< stored but unused
    float radius = 0; ///< in pixels

private:
    void blur(const ShaderProgram &program, GLuint sourceTexture, const FramebufferObject &target) const;

    RenderTarget m_intermediate;
    ShaderProgram m_alongY;
    ShaderProgram m_alongX;
};

} // namespace grisal::graphics
