// SPDX-License-Identifier: MIT
#include "app/Memory.h"

#include <malloc.h>

#include <climits>

namespace memory
{

void keepFreedBlocks()
{
    mallopt(M_MMAP_THRESHOLD, INT_MAX);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
}

void returnFreedBlocks()
{
    malloc_trim(0);
}

} // namespace memory
