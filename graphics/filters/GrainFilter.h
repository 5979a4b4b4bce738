// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterDeclaration.h"
#include "graphics/filters/FilterProgram.h"
#include "graphics/filters/GaussianBlurFilter.h"
#include "graphics/filters/IFilter.h"
#include "graphics/gl/Textures.h"

#include <QVector>

#include <memory>

namespace grisal::graphics
{

/// Film grain: overlays blurred noise n onto the picture c, mixed in by the weight w of the pixel's grey:
/// c * (1 - w) + overlay(c, n) * w with the overlay of HalfToneFilter. Noise is read at pixel * 0.0019, in units of
/// the noise map, which mirrors beyond its edges. Weights of 0 leave the picture exactly as it is.
///
/// setSigma() has to be called before the first pass.
class GrainFilter : public IFilter
{
public:
    struct Parameters {
        QVector<float> weights = QVector<float>(256, 0.0F); ///< 256 samples 0..1, the strength for the grey i / 256
        float radius = 1.5F;                                ///< blur of the noise in pixels: the coarseness
    };
    static const FilterDeclaration<Parameters> &declaration();

    GrainFilter();

    void apply(GLuint sourceTexture, const FramebufferObject &target) override;

    /// Sends the weights if they differ from the current ones. The context must be current. The radius is set by
    /// setSigma(), which renders.
    void setParameters(const Parameters &wanted);

    /// The program of the pass, compiled at its first use. The context must be current.
    const ShaderProgram &program() const { return m_program.get(); }

    /// Takes the strengths 0..1 for evenly spaced greys, 256 of them from the grain panel. The context must be
    /// current.
    void setWeights(const QVector<float> &values);

    /// Blurs the noise with a radius of `sigma` pixels: the coarseness of the grain. It renders, so the context must be
    /// current; noise that has this radius already is left as it is. Where GL reports a fault the noise is forgotten.
    void setSigma(float sigma);

    /// There is no noise until the next setSigma(), which blurs it from the start: after a failure of the driver its
    /// textures may hold anything. The context must be current.
    void forgetNoise();

    float sigma() const { return m_sigma; }
    GLuint weightsTexture() const { return m_weightsTexture.name(); }
    /// The filter that blurs the noise; null while there is no noise.
    const GaussianBlurFilter *blur() const { return m_blur.get(); }
    /// The blurred noise; null before the first setSigma() and after forgetNoise().
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
