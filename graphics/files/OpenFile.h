// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <utility>

namespace grisal::graphics
{

/// A range of bytes in a file.
struct FileRange {
    std::uint64_t start = 0;
    std::uint64_t end = 0; ///< behind the last byte

    std::uint64_t size() const { return end - start; }
};

/// Owns a file descriptor and closes it at its end.
class OpenFile
{
public:
    /// Takes ownership of a descriptor; a negative one means no file.
    explicit OpenFile(int descriptor = -1) : m_descriptor(descriptor) {}
    OpenFile(OpenFile &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    OpenFile &operator=(OpenFile &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;
    ~OpenFile();

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }

    /// Gives up ownership: the descriptor stays open.
    void release() { m_descriptor = -1; }

    /// In bytes; 0 if it is unknown.
    std::uint64_t size() const;

    /// In bytes, without the holes of a sparse file, which read as zeros.
    std::uint64_t storedSize() const;

    /// The first range of data at or behind an offset; empty where there is none. File systems without holes have one
    /// range.
    FileRange dataFrom(std::uint64_t offset) const;

    /// `count` bytes from an offset in the file, or as many as there are.
    QByteArray bytesAt(std::uint64_t offset, qsizetype count) const;

    /// Inserts bytes at an offset. Returns false and leaves the file unchanged where the disk has no space for them;
    /// throws where it fails later and leaves the file damaged.
    bool insert(std::uint64_t offset, QByteArrayView bytes) const;

    /// Overwrites the bytes at an offset. Throws where it fails.
    void overwrite(std::uint64_t offset, QByteArrayView bytes) const;

private:
    int m_descriptor;
};

} // namespace grisal::graphics
