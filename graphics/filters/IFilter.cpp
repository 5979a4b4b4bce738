// SPDX-License-Identifier: MIT
#include "graphics/filters/IFilter.h"

#include <utility>

namespace grisal::graphics
{

IFilter::IFilter(std::string name) : m_name(std::move(name)) {}

IFilter::~IFilter() = default;

} // namespace grisal::graphics
