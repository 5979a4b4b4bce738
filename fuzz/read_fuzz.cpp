// SPDX-License-Identifier: MIT
//
// A file of any bytes is read or rejected with a reason. The info and the pixels of an image that was read can be
// retrieved, and its metadata can be saved with another image.
#include "graphics/files/LumioImage.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace
{

using grisal::graphics::LumioImage;

/// Larger images only take time.
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

/// Saves the metadata with a small image, in a format chosen by `number`.
void saveMetadata(const LumioImage &source, std::size_t number)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/grisal-XXXXXX"));
    static const std::array<const char *, 3> names{"a.jpg", "a.png", "a.tif"};
    LumioImage output(2, 2, false);
    output.setMetadata(source.metadata());
    require(output.save(folder.filePath(QString::fromLatin1(names[number % names.size()])), 90));
    require(output.read(folder.filePath(QString::fromLatin1(names[number % names.size()]))));
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
    saveMetadata(image, size);
    return 0;
}
