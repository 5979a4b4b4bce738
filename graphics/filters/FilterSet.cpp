// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterSet.h"

#include <type_traits>

namespace grisal::graphics
{

namespace
{

template <typename... Filters>
void addInOrder(FilterSet &filters, DocumentFilterQueue &queue, std::type_identity<std::tuple<Filters...>> /*order*/)
{
    (queue.add(&filters.get<Filters>()), ...);
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

void FilterSet::setLook(const Look &look)
{
    forEach([&](auto &filter) { filter.setParameters(look.get<std::decay_t<decltype(filter)>>()); });
}

void FilterSet::addToPreview(DocumentFilterQueue &queue)
{
    forEach([&](IFilter &filter) { queue.add(&filter); });
}

void FilterSet::addToFinalRender(DocumentFilterQueue &queue)
{
    addInOrder(*this, queue, std::type_identity<FinalFilters>());
}

} // namespace grisal::graphics
