// SPDX-License-Identifier: MIT
#pragma once

#include "FilterList.h"

#include <tuple>

namespace grisal::graphics
{

/// The parameters of all filters, which the panels set; initially the defaults.
class Look
{
public:
    template <typename Filter>
    typename Filter::Parameters &get()
    {
        return std::get<typename Filter::Parameters>(m_parameters);
    }
    template <typename Filter>
    const typename Filter::Parameters &get() const
    {
        return std::get<typename Filter::Parameters>(m_parameters);
    }

private:
    template <typename... Filters>
    static std::tuple<typename Filters::Parameters...> parametersOf(const std::tuple<Filters...> *);

    decltype(parametersOf(static_cast<PreviewFilters *>(nullptr))) m_parameters;
};

} // namespace grisal::graphics
