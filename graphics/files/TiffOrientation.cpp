// SPDX-License-Identifier: MIT
#include "graphics/files/TiffOrientation.h"

#include "graphics/files/TiffDirectory.h"

#include <sys/mman.h>
#include <sys/sendfile.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <system_error>

namespace grisal::graphics
{

namespace
{

bool isNormal(const TiffEntry &entry, TiffByteOrder order)
{
    return entry.has(TiffType::Short) && entry.count == 1 && order.get<std::uint16_t>(entry.content.constData()) == 1;
}

void copyRange(const FileRange &range, const OpenFile &from, const OpenFile &to)
{
    auto offset = static_cast<off_t>(range.start);
    const auto end = static_cast<off_t>(range.end);
    ssize_t sent = lseek(to.descriptor(), offset, SEEK_SET) == offset ? 1 : -1;
    while (offset < end && sent > 0) {
        sent = sendfile(to.descriptor(), from.descriptor(), &offset, static_cast<std::size_t>(end - offset));
    }
    if (offset < end) {
        throw std::system_error(sent == 0 ? EIO : errno, std::generic_category(), "The file cannot be copied");
    }
}

OpenFile copyInMemory(const OpenFile &file)
{
    OpenFile copy(memfd_create("image", MFD_CLOEXEC));
    if (!copy.isOpen() || ftruncate(copy.descriptor(), static_cast<off_t>(file.size())) != 0) {
        throw std::system_error(errno, std::generic_category(), "The file cannot be copied");
    }
    for (FileRange range = file.dataFrom(0); range.size() > 0; range = file.dataFrom(range.end)) {
        copyRange(range, file, copy);
    }
    return copy;
}

/// The orientation of a file, where it has to be changed.
struct OrientationEntry {
    TiffByteOrder order;
    TiffEntry entry;
    std::uint64_t offset; ///< of the entry in the file
};

std::optional<OrientationEntry> findAbnormalOrientation(const OpenFile &file)
{
    const std::optional<TiffFirstDirectory> directory = readFirstDirectory(file);
    if (!directory) {
        return std::nullopt;
    }
    const auto &[order, start] = directory->header;
    for (const TiffEntry &entry : directory->entries) {
        if (entry.has(TiffTag::Orientation) && !isNormal(entry, order)) {
            return OrientationEntry{order, entry, std::uint64_t{start} + entry.offset};
        }
    }
    return std::nullopt;
}

} // namespace

OpenFile copyWithNormalOrientation(const OpenFile &file)
{
    const std::optional<OrientationEntry> found = findAbnormalOrientation(file);
    if (!found) {
        return OpenFile();
    }
    OpenFile copy = copyInMemory(file);
    const QByteArray first = found->order.bytesOf(std::uint16_t{1}) + QByteArray(2, '\0');
    copy.overwrite(found->offset, encodeEntry({found->entry.tag, static_cast<std::uint16_t>(TiffType::Short), 1, first},
                                              found->order));
    return copy;
}

std::uint64_t sizeOfNormalisedCopy(const OpenFile &file)
{
    return findAbnormalOrientation(file) ? file.storedSize() : 0;
}

} // namespace grisal::graphics
