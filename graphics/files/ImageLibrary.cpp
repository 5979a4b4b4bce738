// SPDX-License-Identifier: MIT
#include "graphics/files/ImageLibrary.h"

#include "graphics/files/FreeMemory.h"

#include <Magick++.h>

#include <algorithm>
#include <csignal>

namespace grisal::graphics
{

namespace
{

constexpr MagickLib::magick_int64_t maxSide = 65'500;
constexpr MagickLib::magick_int64_t maxPixels = 1'000'000'000;

/// Three quarters of the machine's memory, in bytes.
MagickLib::magick_int64_t memoryShare()
{
    return static_cast<MagickLib::magick_int64_t>(machineMemory() / 4 * 3);
}

void setLimits()
{
    using namespace MagickLib;
    SetMagickResourceLimit(WidthResource, maxSide);
    SetMagickResourceLimit(HeightResource, maxSide);
    SetMagickResourceLimit(PixelsResource, maxPixels);
    SetMagickResourceLimit(MemoryResource, memoryShare());
    SetMagickResourceLimit(MapResource, 0);
    SetMagickResourceLimit(DiskResource, 0);
}

} // namespace

void initializeImageLibrary(const char *programPath)
{
    static bool initialized = false;
    if (initialized) {
        return;
    }
    MagickLib::ExceptionInfo exception;
    MagickLib::GetExceptionInfo(&exception);
    MagickLib::InitializeMagickEx(programPath, MAGICK_OPT_NO_SIGNAL_HANDER, &exception);
    MagickLib::DestroyExceptionInfo(&exception);
    Magick::InitializeMagick(programPath);
    setLimits();
    std::signal(SIGXFSZ, SIG_IGN);
    initialized = true;
}

void useOneThread()
{
    MagickLib::SetMagickResourceLimit(MagickLib::ThreadsResource, 1);
}

ScopedPixelLimit::ScopedPixelLimit(std::uint64_t pixels)
    : m_limitBefore(MagickLib::GetMagickResourceLimit(MagickLib::PixelsResource))
{
    const std::uint64_t limit = std::min(pixels, static_cast<std::uint64_t>(m_limitBefore));
    MagickLib::SetMagickResourceLimit(MagickLib::PixelsResource, static_cast<std::int64_t>(limit));
}

ScopedPixelLimit::~ScopedPixelLimit()
{
    MagickLib::SetMagickResourceLimit(MagickLib::PixelsResource, m_limitBefore);
}

} // namespace grisal::graphics
