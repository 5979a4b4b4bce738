// SPDX-License-Identifier: MIT
#include "graphics/render/PreviewStage.h"

#include "graphics/filters/FilterSet.h"
#include "graphics/image/PreviewPixels.h"

namespace grisal::graphics
{

namespace
{

constexpr float firstGrainRadius = 3.0F;

} // namespace

PreviewStage::PreviewStage() = default;
PreviewStage::~PreviewStage() = default;

void PreviewStage::load(const PreviewPixels &pixels, const PixelFormats &formats, float viewportWidth,
                        float viewportHeight)
{
    // The former picture goes first: two at a time would need twice the memory of the GPU.
    m_preview.reset();
    m_preview = std::make_unique<Preview>(pixels, formats, viewportWidth, viewportHeight);
    m_grainScale = 1.0F;
    prepareFilters(pixels.width, pixels.height);
    rebuildQueue();
}

void PreviewStage::prepareFilters(int width, int height)
{
    if (!m_filters) {
        m_filters = std::make_unique<FilterSet>();
    }
    m_filters->setSize(width, height);
    m_filters->setPictureSize(width, height);
    m_filters->setParameters(m_parameters);
    blurGrain(firstGrainRadius);
    m_filters->mixer.enabled = true;
    m_filters->curve.enabled = false;
    m_filters->vignette.enabled = false;
    m_filters->splitTone.enabled = false;
    m_filters->grain.enabled = false;
}

void PreviewStage::release()
{
    m_preview.reset();
    m_filters.reset();
}

void PreviewStage::rebuildQueue()
{
    if (m_preview) {
        m_preview->queue().clear();
        addPreviewFilters(m_preview->queue(), *m_filters);
    }
}

void PreviewStage::blurGrain(float radius)
{
    m_filters->grain.setSigma(radius * m_grainScale);
}

void PreviewStage::setMixer(const ColorRGB<float> &weights)
{
    m_parameters.mixerWeights = weights;
    if (m_filters) {
        m_filters->setMixer(m_parameters);
    }
}

void PreviewStage::setVignette(float x, float y, float radius, float strength, bool extraBlur)
{
    m_parameters.vignetteX = x;
    m_parameters.vignetteY = y;
    m_parameters.vignetteRadius = radius;
    m_parameters.vignetteStrength = strength;
    m_parameters.extraBlur = extraBlur;
    if (m_filters) {
        m_filters->setVignette(m_parameters);
    }
}

void PreviewStage::setSplitTone(float weight, const ColorRGB<float> &highlights, const ColorRGB<float> &shadows)
{
    m_parameters.splitWeight = weight;
    m_parameters.highlightTint = highlights;
    m_parameters.shadowTint = shadows;
    if (m_filters) {
        m_filters->setSplitTone(m_parameters);
    }
}

void PreviewStage::setGrain(const QVector<float> &weights, float radius)
{
    m_parameters.grainWeights = weights;
    m_parameters.grainRadius = radius;
    if (m_filters) {
        m_filters->setGrainWeights(m_parameters);
        blurGrain(radius);
    }
}

void PreviewStage::setCurve(const QVector<float> &curve)
{
    m_parameters.curve = curve;
    if (m_filters) {
        m_filters->setCurve(m_parameters);
    }
}

bool PreviewStage::renderFinal(const FinalPicture &picture, const TileProgress &progress)
{
    const bool usable = picture.pixels != nullptr && picture.width > 0 && picture.height > 0;
    if (!usable || !m_preview) {
        return false;
    }
    const bool rendered = renderFinalPicture(picture, m_parameters, *m_filters, m_preview->view(), progress);
    blurGrain(m_parameters.grainRadius);
    return rendered;
}

} // namespace grisal::graphics
