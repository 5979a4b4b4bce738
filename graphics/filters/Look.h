// SPDX-License-Identifier: MIT
#pragma once

#include "FilterList.h"

#include <tuple>

namespace grisal::graphics
{

/// What the panels set: the parameters of all filters, at first their defaults.
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
