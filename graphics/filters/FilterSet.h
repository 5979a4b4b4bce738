// SPDX-License-Identifier: MIT
#pragma once

#include "Filters.h"
#include "graphics/look/EnabledFilters.h"
#include "graphics/look/FilterParameters.h"

#include <tuple>
#include <vector>

namespace grisal::graphics
{

/// The filters of an image, one of each type in the filter list, shared by its preview and its final render. The
/// context must be current when the set is created, used and destroyed.
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

    /// Calls `visit` with every filter, in preview order.
    template <typename Visit>
    void forEach(Visit visit)
    {
        std::apply([&](auto &...filters) { (visit(filters), ...); }, m_filters);
    }

    /// Sets the pass size of all filters, in pixels.
    void setSize(int width, int height);

    /// Sets the size of the whole image, in pixels, in the filters that depend on the position in the image.
    void setImageSize(int width, int height);

    /// Enables the filters that are declared as enabled at load, and disables all others.
    void resetEnabled();

    /// Which filters are enabled.
    EnabledFilters enabled() const;

    /// Passes the parameters to their filters; those that are stored in textures are uploaded only if they have
    /// changed. The grain radius is not passed, because setting it renders.
    void setParameters(const FilterParameters &parameters);

    /// The filters in the order of the preview and of the final render.
    std::vector<IFilter *> previewOrder();
    std::vector<IFilter *> finalOrder();

private:
    PreviewFilters m_filters;
};

} // namespace grisal::graphics
