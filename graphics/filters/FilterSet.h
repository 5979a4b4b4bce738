// SPDX-License-Identifier: MIT
#pragma once

#include "FilterList.h"
#include "graphics/document/DocumentFilterQueue.h"
#include "graphics/filters/Look.h"

namespace grisal::graphics
{

/// The filters of an image, one of each kind of the list, shared by its preview and its final render. Made, used and
/// destroyed with the context current.
class FilterSet
{
public:
    template <typename Filter>
    Filter &get()
    {
        return std::get<Filter>(m_filters);
    }
    template <typename Filter>
    const Filter &get() const
    {
        return std::get<Filter>(m_filters);
    }

    /// Calls `visit` with every filter, in the order of the preview.
    template <typename Visit>
    void forEach(Visit visit)
    {
        std::apply([&](auto &...filters) { (visit(filters), ...); }, m_filters);
    }

    /// Sets the size of the passes of all filters, in pixels.
    void setSize(int width, int height);

    /// Sets the size of the whole image, in pixels, for the filters that depend on the position in it.
    void setImageSize(int width, int height);

    /// Switches on the filters that are enabled when an image is opened, and all others off.
    void resetEnabled();

    /// Sends the parameters to their filters, those with a texture only if they have changed. The grain's radius is not
    /// sent: setting it renders.
    void setLook(const Look &look);

    /// Appends the filters to a queue, in the order of the preview or of the final render.
    void addToPreview(DocumentFilterQueue &queue);
    void addToFinalRender(DocumentFilterQueue &queue);

private:
    PreviewFilters m_filters;
};

} // namespace grisal::graphics
