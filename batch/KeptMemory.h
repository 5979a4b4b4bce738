// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::batch
{

/// Makes the allocator keep the memory of a picture for the next one. Otherwise the system would have to provide and
/// clear all of its pages again, which takes a fifth of the time of a conversion.
void keepFreedMemory();

/// Returns freed memory to the system if the process has more than so many bytes in memory.
void returnFreedMemoryAbove(std::uint64_t bytes);

} // namespace grisal::batch
