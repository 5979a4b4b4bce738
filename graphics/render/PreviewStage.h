// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterSet.h"
#include "graphics/render/FinalRender.h"
#include "graphics/render/Preview.h"

#include <memory>

namespace grisal::graphics
{

/// The image that is being worked on: its preview, the filters and their parameters.
///
/// Parameters can be set at any time; they reach the filters once these exist, from the first load on. Everything but
/// the getters needs the context to be current once there are filters, and so does the destructor unless release() was
/// called before.
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
    const Look &look() const { return m_look; }

    /// Fills the queue of the preview again.
    void rebuildQueue();

    /// Sets the parameters of a filter.
    template <typename Filter>
    void set(const typename Filter::Parameters &parameters)
    {
        m_look.get<Filter>() = parameters;
        if (m_filters) {
            m_filters->get<Filter>().setParameters(parameters);
        }
    }

    /// Sets the parameters of the grain and blurs its noise.
    void setGrain(const GrainFilter::Parameters &parameters);

    /// Renders a whole picture in place with the filters as they are. False where there is no result or nothing was
    /// loaded yet.
    bool renderFinal(const FinalPicture &picture, const TileProgress &progress = {});

private:
    void prepareFilters(int width, int height);
    void blurGrain();

    Look m_look;
    std::unique_ptr<FilterSet> m_filters;
    std::unique_ptr<Preview> m_preview;
    float m_grainScale = 1.0F;
};

} // namespace grisal::graphics
