// SPDX-License-Identifier: MIT
#include "graphics/document/DocumentFilterQueue.h"

#include "graphics/filters/IFilter.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

bool isEnabled(const IFilter *filter)
{
    return filter->enabled;
}

} // namespace

int countEnabled(const std::vector<IFilter *> &filters)
{
    return static_cast<int>(std::count_if(filters.begin(), filters.end(), isEnabled));
}

bool anyEnabledFrom(const std::vector<IFilter *> &filters, std::size_t first)
{
    return std::any_of(filters.begin() + static_cast<std::ptrdiff_t>(first), filters.end(), isEnabled);
}

} // namespace grisal::graphics
