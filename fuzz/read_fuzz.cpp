// SPDX-License-Identifier: MIT
//
// Any bytes, in a file: it is read, or refused with a reason, and a picture that was read can be described and copied.
#include "graphics/image/LumioImage.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace
{

using grisal::graphics::LumioImage;

/// Larger pictures only take time.
constexpr std::size_t mostPixels = 1'000'000;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void copyOut(LumioImage &image, bool sixteenBit)
{
    const std::size_t count = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height());
    if (count > mostPixels) {
        return;
    }
    std::vector<std::uint16_t> pixels(count * 3);
    require(image.getPixels(pixels.data(), false, sixteenBit));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const int file = memfd_create("picture", MFD_CLOEXEC);
    require(ftruncate(file, 0) == 0);
    require(pwrite(file, data, size, 0) == static_cast<ssize_t>(size));

    LumioImage image;
    if (!image.read(QStringLiteral("/proc/self/fd/%1").arg(file))) {
        require(image.isNull() && !image.problem().isEmpty());
        return 0;
    }
    require(!image.isNull() && !image.info().empty());
    copyOut(image, false);
    copyOut(image, true);
    return 0;
}
