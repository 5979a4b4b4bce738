// SPDX-License-Identifier: MIT
#include "graphics/render/PreviewStage.h"

namespace grisal::graphics
{

namespace
{

constexpr float firstGrainRadius = 3.0F;

} // namespace

PreviewStage::PreviewStage() = default;
PreviewStage::~PreviewStage() = default;

void PreviewStage::load(const Image &image, const PixelFormats &formats, float viewportWidth, float viewportHeight)
{
    // The previous preview is deleted first: two at a time would need twice the GPU memory.
    m_preview.reset();
    m_preview = std::make_unique<Preview>(image, formats, viewportWidth, viewportHeight);
    m_grainScale = 1.0F;
    prepareFilters(widthOf(image), heightOf(image));
    rebuildQueue();
}

void PreviewStage::prepareFilters(int width, int height)
{
    if (!m_filters) {
        m_filters = std::make_unique<FilterSet>();
    }
    m_filters->setSize(width, height);
    m_filters->setImageSize(width, height);
    m_filters->setParameters(m_parameters);
    m_filters->get<GrainFilter>().setSigma(firstGrainRadius);
    m_filters->resetEnabled();
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
        for (IFilter *filter : m_filters->previewOrder()) {
            m_preview->queue().add(filter);
        }
    }
}

void PreviewStage::setGrain(const GrainFilter::Parameters &parameters)
{
    set<GrainFilter>(parameters);
    if (m_filters) {
        blurGrain();
    }
}

void PreviewStage::blurGrain()
{
    m_filters->get<GrainFilter>().setSigma(m_parameters.get<GrainFilter>().radius * m_grainScale);
}

bool PreviewStage::renderFinal(Image &image, const TileProgress &progress)
{
    if (isEmpty(image) || !m_preview) {
        return false;
    }
    const bool rendered = renderFinalImage(image, m_parameters, *m_filters, m_preview->view(), progress);
    blurGrain();
    return rendered;
}

} // namespace grisal::graphics
