// SPDX-License-Identifier: MIT
#include "graphics/filters/GrainFilter.h"

#include "graphics/filters/NoiseMap.h"
#include "graphics/gl/GlErrors.h"

namespace grisal::graphics
{

GrainFilter::GrainFilter() : IFilter(declaration().name), m_program("GrainFilter", "GrainFilter") {}

void GrainFilter::setParameters(const Parameters &wanted)
{
    if (m_weights != wanted.weights) {
        setWeights(wanted.weights);
    }
}

void GrainFilter::setWeights(const QVector<float> &values)
{
    m_weights = values;
    m_weightsTexture =
        Texture(create1DTexture(static_cast<std::int32_t>(values.size()), GL_R32F, GL_RED, GL_FLOAT, values.data()));
}

void GrainFilter::setSigma(float sigma)
{
    if (m_blurredNoise && sigma == m_sigma) {
        return;
    }
    m_sigma = sigma;
    const GlErrorScope scope;
    blurNoise();
    if (!scope.isClean()) {
        discardNoise();
    }
}

void GrainFilter::discardNoise()
{
    m_blur.reset();
    m_blurredNoise.reset();
    m_noiseTexture = Texture();
}

void GrainFilter::blurNoise()
{
    glEnable(GL_TEXTURE_1D);
    glEnable(GL_TEXTURE_2D);
    if (m_noiseTexture.name() == 0) {
        m_noiseTexture = Texture(loadNoiseMap());
    }
    if (!m_blur) {
        m_blur = std::make_unique<GaussianBlurFilter>(m_sigma, 64.0F, noiseMapSide, noiseMapSide, GL_RGB8, GL_RGB,
                                                      GL_UNSIGNED_BYTE);
    }
    if (!m_blurredNoise) {
        m_blurredNoise = std::make_unique<RenderTarget>(noiseMapSide, noiseMapSide, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    }
    m_blur->sigma = m_sigma;
    m_blur->radius = m_sigma;
    m_blur->scale = 1.0F;
    m_blur->apply(m_noiseTexture.name(), m_blurredNoise->record());
}

void GrainFilter::apply(GLuint sourceTexture, const FramebufferObject &target)
{
    setUniform1f(program(), "Width", static_cast<float>(width));
    setUniform1f(program(), "Height", static_cast<float>(height));
    setUniform1f(program(), "Sigma", m_sigma);
    setUniform1f(program(), "MaxPixel", maxPixel);
    const GLuint noise = m_blurredNoise ? m_blurredNoise->record().texture : 0;
    bindTexture2D(program(), "NoiseMap", noise, unit::extra);
    bindTexture1D(program(), "Weights", m_weightsTexture.name(), unit::weights);
    runPass(program(), width, height, sourceTexture, target);

    glActiveTexture(GL_TEXTURE0 + unit::source);
    glBindTexture(GL_TEXTURE_2D, 0);
    glActiveTexture(GL_TEXTURE0 + unit::extra);
    glBindTexture(GL_TEXTURE_2D, 0);
    glActiveTexture(GL_TEXTURE0 + unit::weights);
    glBindTexture(GL_TEXTURE_1D, 0);
}

} // namespace grisal::graphics
