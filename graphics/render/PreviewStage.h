// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterParameters.h"
#include "graphics/render/FinalRender.h"
#include "graphics/render/Preview.h"

#include <memory>

namespace grisal::graphics
{

/// The picture that is being worked on: its preview, the filters, and what the panels last said.
///
/// Parameters can be set at any time; they reach the filters as soon as there are any, which is from the first load
/// on. load(), setCurve(), setGrain(), renderFinal() and release() need the context to be current, and so does the
/// destructor unless release() was called before.
class PreviewStage
{
public:
    PreviewStage();
    PreviewStage(const PreviewStage &) = delete;
    PreviewStage &operator=(const PreviewStage &) = delete;
    ~PreviewStage();

    /// Takes a picture in place of the former one, seen through a viewport of the given size in device pixels. The
    /// mixer is switched on and the other filters off, the parameters stay.
    void load(const PreviewPixels &pixels, const PixelFormats &formats, float viewportWidth, float viewportHeight);

    /// Lets go of everything that belongs to the context.
    void release();

    /// The preview; null before the first load.
    Preview *preview() const { return m_preview.get(); }
    /// The filters; null before the first load.
    FilterSet *filters() const { return m_filters.get(); }
    const FilterParameters &parameters() const { return m_parameters; }

    /// Fills the queue of the preview again.
    void rebuildQueue();

    void setMixer(const ColorRGB<float> &weights);
    void setVignette(float x, float y, float radius, float strength, bool extraBlur);
    void setSplitTone(float weight, const ColorRGB<float> &highlights, const ColorRGB<float> &shadows);
    void setGrain(const QVector<float> &weights, float radius);
    void setCurve(const QVector<float> &curve);

    /// Renders a whole picture in place with the filters as they are. False where there is no result or nothing was
    /// loaded yet.
    bool renderFinal(const FinalPicture &picture, const TileProgress &progress = {});

private:
    void prepareFilters(int width, int height);
    void blurGrain(float radius);

    FilterParameters m_parameters;
    std::unique_ptr<FilterSet> m_filters;
    std::unique_ptr<Preview> m_preview;
    float m_grainScale = 1.0F;
};

} // namespace grisal::graphics
