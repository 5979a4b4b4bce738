// SPDX-License-Identifier: MIT
#pragma once

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

private:
    int m_descriptor;
};

} // namespace grisal::graphics
