// SPDX-License-Identifier: MIT
#include "graphics/filters/CurveFilter.h"

namespace grisal::graphics
{

CurveFilter::CurveFilter() : IFilter(declaration().name), m_program("CurveFilter", "CurveFilter") {}

void CurveFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(program(), "Width", static_cast<float>(width));
    setUniform1f(program(), "Height", static_cast<float>(height));
    setUniform1f(program(), "MaxPixel", maxPixel);
    bindTexture1D(program(), "Curve", m_curveTexture.name(), unit::extra);
    runPass(program(), width, height, sourceTexture, target);
    glActiveTexture(GL_TEXTURE0);
}

void CurveFilter::setParameters(const Parameters &wanted)
{
    if (m_curve != wanted.curve) {
        setCurve(wanted.curve);
    }
}

void CurveFilter::setCurve(const QVector<float> &values)
{
    m_curve = values;
    m_curveTexture =
        Texture(create1DTexture(static_cast<std::int32_t>(values.size()), GL_R32F, GL_RED, GL_FLOAT, values.data()));
}

} // namespace grisal::graphics
