// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterSet.h"

#include <type_traits>

namespace grisal::graphics
{

namespace
{

template <typename... Filters>
std::vector<IFilter *> inOrder(FilterSet &filters, std::type_identity<std::tuple<Filters...>> /*order*/)
{
    return {&filters.get<Filters>()...};
}

} // namespace

void FilterSet::setSize(int width, int height)
{
    forEach([=](IFilter &filter) {
        filter.width = width;
        filter.height = height;
    });
}

void FilterSet::setImageSize(int width, int height)
{
    forEach([=](auto &filter) {
        if constexpr (requires { filter.maxWidth; }) {
            filter.maxWidth = static_cast<float>(width);
            filter.maxHeight = static_cast<float>(height);
        }
    });
}

void FilterSet::resetEnabled()
{
    forEach([](auto &filter) { filter.enabled = filter.declaration().enabledAtLoad; });
}

EnabledFilters FilterSet::enabled() const
{
    EnabledFilters enabled;
    std::apply(
        [&](const auto &...filters) { ((enabled.get<std::decay_t<decltype(filters)>>() = filters.enabled), ...); },
        m_filters);
    return enabled;
}

void FilterSet::setParameters(const FilterParameters &parameters)
{
    forEach([&](auto &filter) { filter.setParameters(parameters.get<std::decay_t<decltype(filter)>>()); });
}

std::vector<IFilter *> FilterSet::previewOrder()
{
    return inOrder(*this, std::type_identity<PreviewFilters>());
}

std::vector<IFilter *> FilterSet::finalOrder()
{
    return inOrder(*this, std::type_identity<FinalFilters>());
}

} // namespace grisal::graphics
