// SPDX-License-Identifier: MIT
#include "graphics/files/OpenFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace grisal::graphics
{

namespace
{

/// Bytes moved at once.
constexpr std::uint64_t blockSize = 1 << 22;

/// A file of more ranges of data counts as one without holes.
constexpr int maxCountedRanges = 10'000;

} // namespace

OpenFile::~OpenFile()
{
    if (isOpen()) {
        close(m_descriptor);
    }
}

std::uint64_t OpenFile::size() const
{
    struct stat status {
    };
    return fstat(m_descriptor, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::uint64_t OpenFile::storedSize() const
{
    std::uint64_t stored = 0;
    FileRange range = dataFrom(0);
    for (int i = 0; i < maxCountedRanges && range.size() > 0; ++i) {
        stored += range.size();
        range = dataFrom(range.end);
    }
    return range.size() > 0 ? size() : stored;
}

FileRange OpenFile::dataFrom(std::uint64_t offset) const
{
    const off_t start = lseek(m_descriptor, static_cast<off_t>(offset), SEEK_DATA);
    if (start < 0 && errno != ENXIO) {
        return {offset, std::max(offset, size())};
    }
    const off_t end = start < 0 ? start : lseek(m_descriptor, start, SEEK_HOLE);
    return end < 0 ? FileRange() : FileRange{static_cast<std::uint64_t>(start), static_cast<std::uint64_t>(end)};
}

QByteArray OpenFile::bytesAt(std::uint64_t offset, qsizetype count) const
{
    QByteArray bytes(count, '\0');
    qsizetype done = 0;
    ssize_t got = 1;
    while (done < count && got > 0) {
        got = pread(m_descriptor, bytes.data() + done, static_cast<std::size_t>(count - done),
                    static_cast<off_t>(offset) + done);
        done += std::max<ssize_t>(got, 0);
    }
    bytes.truncate(done);
    return bytes;
}

void OpenFile::overwrite(std::uint64_t offset, QByteArrayView bytes) const
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written = pwrite(m_descriptor, bytes.data() + done, static_cast<std::size_t>(bytes.size() - done),
                                       static_cast<off_t>(offset) + done);
        if (written <= 0) {
            throw std::system_error(errno, std::generic_category(), "The file cannot be completed");
        }
        done += written;
    }
}

// The last block is moved first, since each block overwrites the one behind it.
bool OpenFile::insert(std::uint64_t offset, QByteArrayView bytes) const
{
    const std::uint64_t end = size();
    if (posix_fallocate(m_descriptor, static_cast<off_t>(end), bytes.size()) != 0) {
        [[maybe_unused]] const int back = ftruncate(m_descriptor, static_cast<off_t>(end));
        return false;
    }
    const auto distance = static_cast<std::uint64_t>(bytes.size());
    for (std::uint64_t behind = end; behind > offset;) {
        const std::uint64_t length = std::min(blockSize, behind - offset);
        behind -= length;
        const QByteArray block = bytesAt(behind, static_cast<qsizetype>(length));
        if (block.size() != static_cast<qsizetype>(length)) {
            throw std::system_error(EIO, std::generic_category(), "The file cannot be completed");
        }
        overwrite(behind + distance, block);
    }
    overwrite(offset, bytes);
    return true;
}

} // namespace grisal::graphics
