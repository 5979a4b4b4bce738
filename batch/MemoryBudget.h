// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>

namespace grisal::batch
{

/// Limits how much memory the pictures in work take together.
class MemoryBudget
{
public:
    /// `limit` is in bytes. The default is half of the machine's memory, but no more than is free now.
    explicit MemoryBudget(std::optional<std::uint64_t> limit);

    std::uint64_t limit() const { return m_limit; }

    /// Whether a picture that takes so many bytes may be started. One picture is always allowed, so that a large one is
    /// converted alone instead of never.
    bool allows(std::uint64_t bytes) const;

    void take(std::uint64_t task, std::uint64_t bytes);
    void release(std::uint64_t task);

private:
    std::uint64_t m_limit;
    std::uint64_t m_used = 0;
    std::unordered_map<std::uint64_t, std::uint64_t> m_taken; ///< bytes by task
};

} // namespace grisal::batch
