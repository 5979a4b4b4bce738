// SPDX-License-Identifier: MIT
#include "graphics/files/TiffOrientation.h"

#include "graphics/files/TiffDirectory.h"

#include <sys/mman.h>
#include <sys/sendfile.h>

#include <cerrno>
#include <optional>
#include <system_error>

namespace grisal::graphics
{

namespace
{

constexpr std::uint16_t shortType = 3;

bool isNormal(const TiffEntry &entry, TiffByteOrder order)
{
    return entry.type == shortType && entry.count == 1 && order.get<std::uint16_t>(entry.content.constData()) == 1;
}

OpenFile copyInMemory(const OpenFile &file)
{
    OpenFile copy(memfd_create("image", MFD_CLOEXEC));
    const std::uint64_t size = file.size();
    off_t done = 0;
    ssize_t sent = 1;
    while (copy.isOpen() && static_cast<std::uint64_t>(done) < size && sent > 0) {
        sent = sendfile(copy.descriptor(), file.descriptor(), &done, size - static_cast<std::uint64_t>(done));
    }
    if (static_cast<std::uint64_t>(done) != size) {
        throw std::system_error(errno, std::generic_category(), "The file cannot be copied");
    }
    return copy;
}

} // namespace

OpenFile copyWithNormalOrientation(const OpenFile &file)
{
    const QByteArray header = file.bytesAt(0, tiffHeaderSize);
    const std::optional<TiffByteOrder> order = header.size() == tiffHeaderSize ? tiffByteOrderOf(header) : std::nullopt;
    if (!order) {
        return OpenFile();
    }
    const auto start = order->get<std::uint32_t>(header.constData() + 4);
    for (const TiffEntry &entry : decodeDirectory(file.bytesAt(start, maxTiffDirectorySize), *order)) {
        if (entry.tag == static_cast<std::uint16_t>(TiffTag::Orientation) && !isNormal(entry, *order)) {
            OpenFile copy = copyInMemory(file);
            const QByteArray first = order->bytesOf(std::uint16_t{1}) + QByteArray(2, '\0');
            copy.overwrite(start + entry.offset, encodeEntry({entry.tag, shortType, 1, first}, *order));
            return copy;
        }
    }
    return OpenFile();
}

} // namespace grisal::graphics
