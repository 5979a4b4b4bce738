// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <sys/resource.h>
#include <unistd.h>

#include <cstdint>

namespace grisal::test
{

/// Whether the address space can be limited; the address sanitizer needs all of it.
#ifdef __SANITIZE_ADDRESS__
constexpr bool canLimitAddresses = false;
#else
constexpr bool canLimitAddresses = true;
#endif

/// Limits the memory that the process may take in addition, in bytes, during its lifetime.
class AddressLimit
{
public:
    explicit AddressLimit(std::uint64_t bytes)
    {
        getrlimit(RLIMIT_AS, &m_before);
        const rlimit limit{addressSpace() + bytes, m_before.rlim_max};
        setrlimit(RLIMIT_AS, &limit);
    }
    AddressLimit(const AddressLimit &) = delete;
    AddressLimit &operator=(const AddressLimit &) = delete;
    ~AddressLimit() { setrlimit(RLIMIT_AS, &m_before); }

private:
    static rlim_t addressSpace()
    {
        QFile file(QStringLiteral("/proc/self/statm"));
        const bool isOpen = file.open(QIODevice::ReadOnly);
        const QByteArray pages = isOpen ? file.readAll().split(' ').first() : QByteArray();
        return pages.toULongLong() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    }

    rlimit m_before{};
};

} // namespace grisal::test
