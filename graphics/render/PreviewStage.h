// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/FilterSet.h"
#include "graphics/render/FinalRender.h"
#include "graphics/render/Preview.h"

#include <memory>

namespace grisal::graphics
{

/// The image that the user is editing: its preview, the filters and their parameters.
///
/// Parameters can be set at any time; the first load() creates the filters and passes the parameters to them. Once
/// there are filters, every function except the getters needs the context to be current, and so does the destructor
/// unless release() was called before.
class PreviewStage
{
public:
    PreviewStage();
    PreviewStage(const PreviewStage &) = delete;
    PreviewStage &operator=(const PreviewStage &) = delete;
    ~PreviewStage();

    /// Replaces the image. The viewport has the given size in device pixels. The filters that are declared as enabled
    /// at load (the mixer) are enabled and the others disabled; the parameters stay the same.
    void load(const Image &image, const PixelFormats &formats, float viewportWidth, float viewportHeight);

    /// Deletes the preview and the filters, which belong to the context.
    void release();

    /// Returns the preview; null before the first load and after release().
    Preview *preview() const { return m_preview.get(); }
    /// Returns the filters; null before the first load and after release().
    FilterSet *filters() const { return m_filters.get(); }
    const FilterParameters &parameters() const { return m_parameters; }

    /// Clears the queue of the preview and adds all filters again.
    void rebuildQueue();

    /// Sets the parameters of a filter.
    template <typename Filter>
    void set(const typename Filter::Parameters &parameters)
    {
        m_parameters.get<Filter>() = parameters;
        if (m_filters) {
            m_filters->get<Filter>().setParameters(parameters);
        }
    }

    /// Sets the parameters of the grain and blurs its noise with the new radius.
    void setGrain(const GrainFilter::Parameters &parameters);

    /// Renders an image at full size, in place, with the current filters. Returns false if there is no result, if the
    /// image is empty or if no image has been loaded.
    bool renderFinal(Image &image, const TileProgress &progress = {});

private:
    void prepareFilters(int width, int height);
    void blurGrain();

    FilterParameters m_parameters;
    std::unique_ptr<FilterSet> m_filters;
    std::unique_ptr<Preview> m_preview;
    float m_grainScale = 1.0F;
};

} // namespace grisal::graphics
