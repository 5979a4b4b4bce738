// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace grisal::graphics
{

/// Initialises GraphicsMagick without its signal handlers, which would break abort() and debuggers, and with limits
/// that override the environment: 65,500 pixels a side, a gigapixel altogether, three quarters of the machine's memory,
/// and no files instead of memory. From then on a write beyond a limit of the file size fails instead of ending the
/// process. `programPath` is argv[0] or null. Only the first call has an effect; every LumioImage calls it.
void initializeImageLibrary(const char *programPath);

/// Makes GraphicsMagick work on the calling thread only: for a program that processes an image in each of several
/// processes. To be called after initializeImageLibrary().
void useOneThread();

/// Limits the pixels of each image that GraphicsMagick allocates during its lifetime.
class ScopedPixelLimit
{
public:
    explicit ScopedPixelLimit(std::uint64_t pixels);
    ScopedPixelLimit(const ScopedPixelLimit &) = delete;
    ScopedPixelLimit &operator=(const ScopedPixelLimit &) = delete;
    ~ScopedPixelLimit();

private:
    std::int64_t m_limitBefore;
};

} // namespace grisal::graphics
