// SPDX-License-Identifier: MIT
#include "batch/MemoryBudget.h"

#include "graphics/files/FreeMemory.h"

#include <algorithm>

namespace grisal::batch
{

MemoryBudget::MemoryBudget(std::optional<std::uint64_t> limit)
    : m_limit(limit.value_or(std::min(graphics::machineMemory() / 2, graphics::freeMemory())))
{
}

bool MemoryBudget::allows(std::uint64_t bytes) const
{
    return m_taken.empty() || m_used + bytes <= m_limit;
}

void MemoryBudget::take(std::uint64_t task, std::uint64_t bytes)
{
    m_taken.emplace(task, bytes);
    m_used += bytes;
}

void MemoryBudget::release(std::uint64_t task)
{
    const auto taken = m_taken.extract(task);
    m_used -= taken.empty() ? 0 : taken.mapped();
}

} // namespace grisal::batch
