// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/GaussianBlurFilter.h"
#include "graphics/filters/IFilter.h"
#include "graphics/gl/Textures.h"
#include "graphics/look/GrainFilterParameters.h"

#include <QVector>

#include <memory>

namespace grisal::graphics
{

/// Film grain: overlays blurred noise n onto the image c. With w the weight for the grey value of the pixel, the result
/// is c * (1 - w) + overlay(c, n) * w, with overlay() as in HalfToneFilter. The noise map is read at the texture
/// coordinates pixel * 0.0019 and mirrored beyond its edges. Weights of 0 leave the image exactly as it is.
///
/// setSigma() must be called before the first pass.
class GrainFilter : public IFilter
{
public:
    using Parameters = GrainFilterParameters;
    static const FilterDeclaration<Parameters> &declaration() { return Parameters::declaration(); }

    GrainFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// Uploads the weights if they differ from the current ones. The context must be current. The radius is ignored;
    /// setSigma() sets it, because this renders.
    void setParameters(const Parameters &wanted);

    /// Returns the program of the pass, which is compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    /// Uploads the strengths 0..1 for evenly spaced grey values; the grain panel provides 256 of them. The context must
    /// be current.
    void setWeights(const QVector<float> &values);

    /// Blurs the noise with a radius of `sigma` pixels, the coarseness of the grain. This renders, so the context must
    /// be current. Does nothing if the noise already has this radius. If OpenGL reports an error, the noise is
    /// discarded as by discardNoise().
    void setSigma(float sigma);

    /// Discards the noise and its textures, whose content is undefined after a failure of the OpenGL driver. The next
    /// setSigma() loads and blurs the noise again. The context must be current.
    void discardNoise();

    float sigma() const { return m_sigma; }
    GLuint weightsTexture() const { return m_weightsTexture.name(); }
    /// Returns the filter that blurs the noise; null if there is no noise.
    const GaussianBlurFilter *blur() const { return m_blur.get(); }
    /// Returns the blurred noise; null before the first setSigma() and after discardNoise().
    const RenderTarget *blurredNoise() const { return m_blurredNoise.get(); }

private:
    void blurNoise();

    FilterProgram m_program;
    float m_sigma = 0;
    Texture m_noiseTexture;
    Texture m_weightsTexture;
    QVector<float> m_weights;
    std::unique_ptr<GaussianBlurFilter> m_blur;
    std::unique_ptr<RenderTarget> m_blurredNoise;
};

} // namespace grisal::graphics
