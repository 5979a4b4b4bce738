// SPDX-License-Identifier: MIT
#pragma once

#include "FilterList.h"

#include <tuple>

namespace grisal::graphics
{

/// The parameters of all filters, which the panels set; initially the defaults. A plain value: the filters themselves,
/// which need OpenGL, only select the parameters.
class FilterParameters
{
public:
    template <typename Filter>
    ParametersOf<Filter> &get()
    {
        return std::get<ParametersOf<Filter>>(m_parameters);
    }
    template <typename Filter>
    const ParametersOf<Filter> &get() const
    {
        return std::get<ParametersOf<Filter>>(m_parameters);
    }

    bool operator==(const FilterParameters &) const = default;

private:
    template <typename... Filters>
    static std::tuple<ParametersOf<Filters>...> parametersOf(const std::tuple<Filters...> *);

    decltype(parametersOf(static_cast<PreviewFilters *>(nullptr))) m_parameters;
};

} // namespace grisal::graphics
