// SPDX-License-Identifier: MIT
#include "graphics/files/ReplacementFile.h"

#include "graphics/files/PictureFormat.h"

#include <QFile>
#include <QUuid>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace grisal::graphics
{

namespace
{

constexpr mode_t newFileMode = 0666;
constexpr mode_t allPermissions = 0777;
constexpr int mostLinks = 40;

QByteArray linkTarget(const QByteArray &path)
{
    QByteArray target(PATH_MAX, '\0');
    const ssize_t length = readlink(path.constData(), target.data(), static_cast<std::size_t>(target.size()));
    target.truncate(length > 0 ? length : 0);
    return target;
}

QByteArray folderOf(const QByteArray &path)
{
    const auto slash = path.lastIndexOf('/');
    const QByteArray folder = slash < 0 ? "." : path.left(slash + 1);
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(folder.constData(), nullptr), &std::free);
    return QByteArray(real.get());
}

/// The path at the end of all links, as the system follows them, whether or not there is a file. Empty, with errno
/// telling why, where it leads nowhere.
QByteArray endOfLinks(QByteArray path)
{
    for (int i = 0; i < mostLinks; ++i) {
        const OpenFile file(open(path.constData(), O_PATH | O_CLOEXEC));
        if (file.isOpen()) {
            return linkTarget(QByteArray::fromStdString(nameOfOpenFile(file.descriptor())));
        }
        const QByteArray folder = errno == ENOENT ? folderOf(path) : QByteArray();
        if (folder.isEmpty()) {
            return {};
        }
        path = folder + '/' + path.mid(path.lastIndexOf('/') + 1);
        const QByteArray target = linkTarget(path);
        if (target.isEmpty()) {
            return path;
        }
        path = target.startsWith('/') ? target : folder + '/' + target;
    }
    errno = ELOOP;
    return {};
}

/// The permissions that the user takes away from new files.
mode_t fileMask()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("Umask:")) {
                return line.mid(6).trimmed().toUInt(nullptr, 8);
            }
        }
    }
    return 077;
}

/// Copies an attribute of the old file; true also where there is none.
bool copyAttribute(const QByteArray &from, const OpenFile &to, const char *name)
{
    const ssize_t size = getxattr(from.constData(), name, nullptr, 0);
    if (size < 0) {
        return errno == ENODATA || errno == EOPNOTSUPP;
    }
    QByteArray value(size, '\0');
    return getxattr(from.constData(), name, value.data(), static_cast<std::size_t>(size)) == size &&
           fsetxattr(to.descriptor(), name, value.constData(), static_cast<std::size_t>(size), 0) == 0;
}

/// Copies what users and desktops have noted about the old file.
void copyNotes(const QByteArray &from, const OpenFile &to)
{
    QByteArray names(listxattr(from.constData(), nullptr, 0) + 1, '\0');
    const ssize_t size = listxattr(from.constData(), names.data(), static_cast<std::size_t>(names.size()));
    for (const QByteArray &name : names.left(size > 0 ? size : 0).split('\0')) {
        if (name.startsWith("user.")) {
            copyAttribute(from, to, name.constData());
        }
    }
}

/// The permissions that others have, for the group too.
mode_t withoutGroup(mode_t mode)
{
    constexpr mode_t group = 0070;
    return (mode & ~group) | (mode & group & ((mode & 0007) << 3));
}

/// Sets permissions; where the drive cannot, it is enough that there are not more than wanted.
bool setMode(const OpenFile &file, mode_t mode)
{
    struct stat status {
    };
    if (fchmod(file.descriptor(), mode) == 0) {
        return true;
    }
    const int reason = errno;
    const bool tight = fstat(file.descriptor(), &status) == 0 && (status.st_mode & allPermissions & ~mode) == 0;
    errno = reason;
    return tight;
}

} // namespace

ReplacementFile::ReplacementFile(const QString &path)
{
    findTarget(path);
    if (m_problem.isEmpty()) {
        openTemporary();
    }
}

ReplacementFile::~ReplacementFile()
{
    if (!m_temporary.isEmpty()) {
        unlink(m_temporary.constData());
    }
}

bool ReplacementFile::fail(const char *what)
{
    m_problem = QStringLiteral("%1: %2").arg(QString::fromLatin1(what), QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

void ReplacementFile::findTarget(const QString &path)
{
    m_target = endOfLinks(QFile::encodeName(path));
    if (m_target.isEmpty()) {
        fail("The file cannot be reached");
        return;
    }
    m_folder = m_target.left(m_target.lastIndexOf('/') + 1);
    struct stat status {
    };
    if (stat(m_target.constData(), &status) != 0) {
        return;
    }
    if (!S_ISREG(status.st_mode)) {
        m_problem = QStringLiteral("There is something else than a file");
    } else if (access(m_target.constData(), W_OK) != 0) {
        fail("The file is not to be written");
    }
}

void ReplacementFile::openTemporary()
{
    m_file = OpenFile(open(m_folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (m_file.isOpen()) {
        return;
    }
    // Some network drives know no files without names.
    const QByteArray extension = m_target.mid(m_target.lastIndexOf('.'));
    QByteArray name = m_folder + ".grisal-XXXXXX" + extension;
    m_file = OpenFile(mkostemps(name.data(), static_cast<int>(extension.size()), O_CLOEXEC));
    if (m_file.isOpen()) {
        m_temporary = name;
    } else {
        fail("The folder cannot be written to");
    }
}

bool ReplacementFile::commit()
{
    if (!m_problem.isEmpty()) {
        return false;
    }
    if (!takePermissions() || fsync(m_file.descriptor()) != 0) {
        return fail("The file cannot be completed");
    }
    if (!takePlace()) {
        return fail("The file cannot be put in its place");
    }
    const OpenFile folder(open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen()) {
        fsync(folder.descriptor());
    }
    return true;
}

bool ReplacementFile::takePermissions()
{
    struct stat status {
    };
    if (stat(m_target.constData(), &status) != 0) {
        return setMode(m_file, newFileMode & ~fileMask());
    }
    const bool ownGroup = fchown(m_file.descriptor(), static_cast<uid_t>(-1), status.st_gid) == 0;
    // Only the administrator may give a file to somebody else.
    [[maybe_unused]] const int given = fchown(m_file.descriptor(), status.st_uid, static_cast<gid_t>(-1));
    copyNotes(m_target, m_file);
    const mode_t mode = status.st_mode & allPermissions;
    if (!setMode(m_file, ownGroup ? mode : withoutGroup(mode))) {
        return false;
    }
    // With an access list, the group's permissions are those of the whole list.
    return !ownGroup || copyAttribute(m_target, m_file, "system.posix_acl_access") ||
           setMode(m_file, withoutGroup(mode));
}

// A file without a name cannot be renamed over another one; where there is none, it can get the name at once.
bool ReplacementFile::takePlace()
{
    if (m_temporary.isEmpty()) {
        if (giveName(m_target)) {
            return true;
        }
        const QByteArray name = m_folder + ".grisal-" + QUuid::createUuid().toByteArray(QUuid::Id128);
        if (errno != EEXIST || !giveName(name)) {
            return false;
        }
        m_temporary = name;
    }
    if (rename(m_temporary.constData(), m_target.constData()) != 0) {
        return false;
    }
    m_temporary.clear();
    return true;
}

bool ReplacementFile::giveName(const QByteArray &name)
{
    const std::string source = nameOfOpenFile(m_file.descriptor());
    return linkat(AT_FDCWD, source.c_str(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
}

} // namespace grisal::graphics
