// SPDX-License-Identifier: MIT
#include "batch/KeptMemory.h"

#include <malloc.h>
#include <unistd.h>

#include <fstream>
#include <limits>

namespace grisal::batch
{

namespace
{

/// The memory of the process in bytes; 0 if the system does not say.
std::uint64_t residentMemory()
{
    std::uint64_t addresses = 0;
    std::uint64_t resident = 0;
    std::ifstream("/proc/self/statm") >> addresses >> resident;
    return resident * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

} // namespace

void keepFreedMemory()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

void returnFreedMemoryAbove(std::uint64_t bytes)
{
    if (residentMemory() > bytes) {
        malloc_trim(0);
    }
}

} // namespace grisal::batch
