// SPDX-License-Identifier: MIT
#include "graphics/files/LeftoverFiles.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QRegularExpression>
#include <QString>
#include <QSysInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

namespace grisal::graphics
{

namespace
{

namespace fs = std::filesystem;

constexpr std::time_t day = std::time_t{24} * 60 * 60;
constexpr int scopeDigits = 16;

/// Where process ids are unique: the running system and its namespace of processes. Empty if that is unknown.
QString processScope()
{
    const QByteArray boot = QSysInfo::bootUniqueId();
    std::error_code error;
    const fs::path processes = fs::read_symlink("/proc/self/ns/pid", error);
    if (boot.isEmpty() || error) {
        return {};
    }
    const QByteArray scope = boot + QByteArray::fromStdString(processes.string());
    const QByteArray hash = QCryptographicHash::hash(scope, QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(hash.left(scopeDigits));
}

bool hasEnded(const QString &scope, const QString &process)
{
    return scope == processScope() && kill(process.toInt(), 0) != 0 && errno == ESRCH;
}

bool isLeftover(const fs::path &path, std::time_t now)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A\\.grisal-([0-9a-f]{16})-([1-9][0-9]{0,8})-[A-Za-z0-9]{6}\\z"));
    const QRegularExpressionMatch match = pattern.match(QString::fromStdString(path.filename().string()));
    struct stat status {
    };
    if (!match.hasMatch() || lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_uid != geteuid()) {
        return false;
    }
    return status.st_mtime < now - day || hasEnded(match.captured(1), match.captured(2));
}

} // namespace

std::string temporaryNameTemplate()
{
    const QString scope = processScope().leftJustified(scopeDigits, QLatin1Char('0'));
    return QStringLiteral(".grisal-%1-%2-XXXXXX").arg(scope).arg(getpid()).toStdString();
}

void removeLeftoverFiles(const fs::path &folder, std::time_t now)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (isLeftover(entry->path(), now)) {
            unlink(entry->path().c_str());
        }
    }
}

} // namespace grisal::graphics
