// SPDX-License-Identifier: MIT
#pragma once

#include "FilterList.h"

#include <tuple>

namespace grisal::graphics
{

/// Which filters are on; initially those that are declared as enabled when an image is opened.
class EnabledFilters
{
public:
    template <typename Filter>
    bool &get()
    {
        return std::get<Switch<Filter>>(m_switches).on;
    }
    template <typename Filter>
    bool get() const
    {
        return std::get<Switch<Filter>>(m_switches).on;
    }

    /// Returns the number of filters that are on.
    int count() const
    {
        return std::apply([](const auto &...switches) { return (0 + ... + static_cast<int>(switches.on)); },
                          m_switches);
    }

    bool operator==(const EnabledFilters &) const = default;

private:
    template <typename Filter>
    struct Switch {
        bool on = ParametersOf<Filter>::declaration().enabledAtLoad;

        bool operator==(const Switch &) const = default;
    };
    template <typename... Filters>
    static std::tuple<Switch<Filters>...> switchesOf(const std::tuple<Filters...> *);

    decltype(switchesOf(static_cast<PreviewFilters *>(nullptr))) m_switches;
};

} // namespace grisal::graphics
