// SPDX-License-Identifier: MIT
#include "graphics/files/FreeMemory.h"

#include <QFile>
#include <QLocale>

#include <unistd.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace grisal::graphics
{

namespace
{

constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

/// Files of the kernel have no size, but are short.
QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::optional<std::uint64_t> numberOf(const QByteArray &text)
{
    bool isNumber = false;
    const std::uint64_t number = text.trimmed().toULongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// The number behind a name at the start of a line.
std::optional<std::uint64_t> numberAfter(const QByteArray &name, const QByteArray &text)
{
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith(name)) {
            return numberOf(line.mid(name.size()).simplified().split(' ').first());
        }
    }
    return std::nullopt;
}

std::uint64_t difference(std::uint64_t limit, std::uint64_t used)
{
    return limit - std::min(limit, used);
}

std::uint64_t freeOnMachine(const QString &proc)
{
    constexpr std::uint64_t kilobyte = 1024;
    const auto available = numberAfter("MemAvailable:", contentsOf(proc + QStringLiteral("/meminfo")));
    return available ? *available * kilobyte : unlimited;
}

std::uint64_t freeAddresses(const QString &proc)
{
    const auto limit = numberAfter("Max address space", contentsOf(proc + QStringLiteral("/self/limits")));
    const auto pages = numberOf(contentsOf(proc + QStringLiteral("/self/statm")).split(' ').first());
    const auto pageSize = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    return limit ? difference(*limit, pages.value_or(0) * pageSize) : unlimited;
}

/// The names of the files of a control group.
struct GroupFiles {
    const char *limit;
    const char *softLimit; ///< may be the same
    const char *usage;
    const char *inactiveFiles;
    const char *activeFiles;
};

constexpr GroupFiles version1{"memory.limit_in_bytes", "memory.limit_in_bytes", "memory.usage_in_bytes",
                              "total_inactive_file ", "total_active_file "};
constexpr GroupFiles version2{"memory.max", "memory.high", "memory.current", "inactive_file ", "active_file "};

std::uint64_t freeInGroup(const QString &folder, const GroupFiles &files)
{
    const auto number = [&](const char *name) { return numberOf(contentsOf(folder + '/' + QLatin1String(name))); };
    const std::uint64_t limit =
        std::min(number(files.limit).value_or(unlimited), number(files.softLimit).value_or(unlimited));
    const QByteArray statistics = contentsOf(folder + QStringLiteral("/memory.stat"));
    const std::uint64_t cached = numberAfter(files.inactiveFiles, statistics).value_or(0) +
                                 numberAfter(files.activeFiles, statistics).value_or(0);
    return limit == unlimited ? unlimited : difference(limit, difference(number(files.usage).value_or(0), cached));
}

/// Of a group and its parents up to the root, which in a container is the group of the container.
std::uint64_t freeInGroups(const QString &root, QString group, const GroupFiles &files)
{
    std::uint64_t least = freeInGroup(root, files);
    while (group.size() > 1) {
        least = std::min(least, freeInGroup(root + group, files));
        group.truncate(group.lastIndexOf('/'));
    }
    return least;
}

/// A line for each hierarchy: its number, its controllers, the path of the group. Version 2 has number 0; in a hybrid
/// setup it is mounted in a folder of its own.
std::uint64_t freeInControlGroups(const MemorySources &sources)
{
    std::uint64_t least = unlimited;
    for (const QByteArray &line : contentsOf(sources.proc + QStringLiteral("/self/cgroup")).split('\n')) {
        const QByteArrayList fields = line.split(':');
        const QString group = QFile::decodeName(fields.mid(2).join(':'));
        if (line.startsWith("0::")) {
            least = std::min({least, freeInGroups(sources.controlGroups, group, version2),
                              freeInGroups(sources.controlGroups + QStringLiteral("/unified"), group, version2)});
        } else if (fields.value(1).split(',').contains("memory")) {
            least = std::min(least, freeInGroups(sources.controlGroups + QStringLiteral("/memory"), group, version1));
        }
    }
    return least;
}

} // namespace

std::uint64_t freeMemory(const MemorySources &sources)
{
    return std::min({freeOnMachine(sources.proc), freeInControlGroups(sources), freeAddresses(sources.proc)});
}

QString memoryText(std::uint64_t bytes)
{
    return QLocale::c().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

std::uint64_t machineMemory()
{
    return static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES)) * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

} // namespace grisal::graphics
