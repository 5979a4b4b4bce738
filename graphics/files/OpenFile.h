// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <utility>

namespace grisal::graphics
{

/// Owns a file descriptor and closes it at its end.
class OpenFile
{
public:
    /// Takes over a descriptor; a negative one stands for no file.
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

    /// Leaves the descriptor open for somebody else to close.
    void release() { m_descriptor = -1; }

    /// In bytes; 0 where it cannot be told.
    std::uint64_t size() const;

    /// `count` bytes from a place in the file, or as many as there are.
    QByteArray bytesAt(std::uint64_t place, qsizetype count) const;

    /// Puts bytes between those before a place and those from there on. Where there is no room for them, returns false
    /// and leaves the file as it is; throws where it fails later and leaves it damaged.
    bool insert(std::uint64_t place, QByteArrayView bytes) const;

    /// Writes over what is at a place. Throws where it fails.
    void overwrite(std::uint64_t place, QByteArrayView bytes) const;

private:
    int m_descriptor;
};

} // namespace grisal::graphics
