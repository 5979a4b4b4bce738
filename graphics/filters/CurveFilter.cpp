// SPDX-License-Identifier: MIT
#include "graphics/filters/CurveFilter.h"

namespace grisal::graphics
{

CurveFilter::CurveFilter() : IFilter("CurveFilter"), m_program("CurveFilter", "CurveFilter") {}

void CurveFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(m_program, "Width", static_cast<float>(width));
    setUniform1f(m_program, "Height", static_cast<float>(height));
    setUniform1f(m_program, "MaxPixel", maxPixel);
    bindTexture1D(m_program, "Curve", m_curveTexture.name(), unit::extra);
    runPass(m_program, width, height, sourceTexture, target);
    glActiveTexture(GL_TEXTURE0);
}

void CurveFilter::setCurve(const QVector<float> &values)
{
    m_curve = values;
    m_curveTexture =
        Texture(create1DTexture(static_cast<std::int32_t>(values.size()), GL_R32F, GL_RED, GL_FLOAT, values.data()));
}

} // namespace grisal::graphics
