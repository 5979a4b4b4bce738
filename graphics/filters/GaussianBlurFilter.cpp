// SPDX-License-Identifier: MIT
#include "graphics/filters/GaussianBlurFilter.h"

namespace grisal::graphics
{

// The labels of the two programs are swapped on purpose: the blur along y is known as HorizontalBlurFilter, the blur
// along x as VerticalBlurFilter.
GaussianBlurFilter::GaussianBlurFilter(float initialSigma, float initialScale, int passWidth, int passHeight,
                                       GLenum internalFormat, GLenum format, GLenum type)
    : IFilter("GaussianBlurFilter"), sigma(initialSigma), scale(initialScale),
      m_intermediate(passWidth, passHeight, format, internalFormat, type),
      m_alongY("HorizontalBlurFilter", vertexSource(), fragmentSource("HorizontalBlurFilter")),
      m_alongX("VerticalBlurFilter", vertexSource(), fragmentSource("VerticalBlurFilter"))
{
    width = passWidth;
    height = passHeight;
}

void GaussianBlurFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    blur(m_alongX, sourceTexture, m_intermediate.record());
    blur(m_alongY, m_intermediate.record().texture, target);
}

void GaussianBlurFilter::blur(const ShaderProgram &program, GLuint sourceTexture, const FramebufferObject &target) const
{
    setUniform1f(program, "Width", static_cast<float>(width));
    setUniform1f(program, "Height", static_cast<float>(height));
    setUniform1f(program, "Sigma", sigma);
    setUniform1f(program, "Radius", radius);
    runPass(program, width, height, sourceTexture, target);
}

} // namespace grisal::graphics
