// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace grisal::graphics
{

/// Where Linux describes the memory of the machine and of the process. Other folders are for tests.
struct MemorySources {
    QString proc = QStringLiteral("/proc");
    QString controlGroups = QStringLiteral("/sys/fs/cgroup");
};

/// How much memory the process can still take, in bytes: the least of
///
/// - MemAvailable of the machine, without swap,
/// - for the memory control group of the process and each of its parents, versions 1 and 2: the limit (also
///   memory.high), less the memory in use, of which cached files are no part,
/// - the limit of the address space (RLIMIT_AS), less its present size.
///
/// A source that is missing or unreadable sets no limit. The figure is a momentary one: other programs take memory,
/// too.
std::uint64_t freeMemory(const MemorySources &sources = {});

/// A number of bytes for messages in English, for example "2.0 GB".
QString memoryText(std::uint64_t bytes);

/// The memory of the machine in bytes, whether free or not.
std::uint64_t machineMemory();

} // namespace grisal::graphics
