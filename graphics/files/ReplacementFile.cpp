// SPDX-License-Identifier: MIT
#include "graphics/files/ReplacementFile.h"

#include "graphics/files/FileError.h"
#include "graphics/files/ImageFormat.h"
#include "graphics/files/LeftoverFiles.h"

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <set>

namespace grisal::graphics
{

namespace
{

namespace fs = std::filesystem;

constexpr mode_t newFileMode = 0666;
constexpr mode_t allPermissions = 0777;
constexpr int maxLinks = 40;

/// The path at the end of all links, as the system follows them, whether or not there is a file.
fs::path endOfLinks(const fs::path &start)
{
    fs::path path = fs::absolute(start);
    for (int i = 0; i < maxLinks; ++i) {
        path = fs::canonical(path.parent_path()) / path.filename();
        if (!fs::is_symlink(path)) {
            return path;
        }
        path = path.parent_path() / fs::read_symlink(path);
    }
    throw fs::filesystem_error("", std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

/// The permissions that the user takes away from new files. Reading them with umask() would change them meanwhile.
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

/// Copies an extended attribute; true also where there is none.
bool copyAttribute(const std::string &from, int to, const char *name)
{
    const ssize_t size = getxattr(from.c_str(), name, nullptr, 0);
    if (size < 0) {
        return errno == ENODATA || errno == EOPNOTSUPP;
    }
    QByteArray value(size, '\0');
    return getxattr(from.c_str(), name, value.data(), static_cast<std::size_t>(size)) == size &&
           fsetxattr(to, name, value.constData(), static_cast<std::size_t>(size), 0) == 0;
}

void copyUserAttributes(const std::string &from, int to)
{
    QByteArray names(listxattr(from.c_str(), nullptr, 0) + 1, '\0');
    const ssize_t size = listxattr(from.c_str(), names.data(), static_cast<std::size_t>(names.size()));
    for (const QByteArray &name : names.left(size > 0 ? size : 0).split('\0')) {
        if (name.startsWith("user.")) {
            copyAttribute(from, to, name.constData());
        }
    }
}

/// Reduces the permissions of the group to those of others.
mode_t withoutGroup(mode_t mode)
{
    constexpr mode_t group = 0070;
    return (mode & ~group) | (mode & group & ((mode & 0007) << 3));
}

/// Sets permissions; where the file system cannot, it is enough that there are not more than requested.
bool setMode(int file, mode_t mode)
{
    struct stat status {
    };
    if (fchmod(file, mode) == 0) {
        return true;
    }
    const int error = errno;
    const bool tight = fstat(file, &status) == 0 && (status.st_mode & allPermissions & ~mode) == 0;
    errno = error;
    return tight;
}

// Once in a process and folder: reading a folder of 40,000 files takes 40 ms, too long for each of them.
void removeLeftoverFilesOnce(const fs::path &folder, std::time_t now)
{
    static std::set<fs::path> searched;
    if (searched.insert(folder).second) {
        removeLeftoverFiles(folder, now);
    }
}

} // namespace

// QSaveFile would not do: in Qt 6.4 it resolves links lexically, cannot replace files with names of more than 248
// bytes, replaces links to devices, ignores errors of fsync, and gives its file more permissions than QTemporaryFile.
ReplacementFile::ReplacementFile(const QString &path)
{
    if (!findTarget(path)) {
        return;
    }
    const fs::path folder = fs::path(m_target).parent_path();
    m_temporary.setFileTemplate(QFile::decodeName((folder / temporaryNameTemplate()).c_str()));
    if (!m_temporary.open()) {
        m_problem =
            Message(QT_TRANSLATE_NOOP("Message", "the folder cannot be written to (%1)"), m_temporary.errorString());
        return;
    }
    m_file = OpenFile(m_temporary.handle());
    struct stat status {
    };
    if (fstat(m_file.descriptor(), &status) == 0) {
        removeLeftoverFilesOnce(folder, status.st_mtime);
    }
}

ReplacementFile::~ReplacementFile()
{
    m_file.release();
}

bool ReplacementFile::fail(const char *what, int error)
{
    m_problem = isDiskFull(error) ? fileErrorMessage(error) : Message(what, fileErrorMessage(error).english());
    return false;
}

bool ReplacementFile::findTarget(const QString &path)
{
    try {
        m_target = endOfLinks(QFile::encodeName(path).toStdString());
    } catch (const fs::filesystem_error &error) {
        return fail(QT_TRANSLATE_NOOP("Message", "the file cannot be reached (%1)"), error.code().value());
    }
    struct stat status {
    };
    if (stat(m_target.c_str(), &status) != 0) {
        return true;
    }
    if (!S_ISREG(status.st_mode)) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "the name belongs to something other than a file"));
        return false;
    }
    return access(m_target.c_str(), W_OK) == 0 ||
           fail(QT_TRANSLATE_NOOP("Message", "the file is write-protected (%1)"), errno);
}

// Asks for space that a failed write may have lacked: GraphicsMagick does not report why it failed.
Message ReplacementFile::shortageOfSpace() const
{
    constexpr off_t wanted = 1 << 16;
    if (m_committed || !m_file.isOpen()) {
        return {};
    }
    const int error = posix_fallocate(m_file.descriptor(), static_cast<off_t>(m_file.size()), wanted);
    return isDiskFull(error) || error == EFBIG ? fileErrorMessage(error) : Message();
}

bool ReplacementFile::commit()
{
    if (!m_problem.isEmpty()) {
        return false;
    }
    if (!copyAccess() || fsync(m_file.descriptor()) != 0) {
        return fail(QT_TRANSLATE_NOOP("Message", "the file cannot be completed (%1)"), errno);
    }
    if (!linkToTarget() && !renameToTarget()) {
        return fail(QT_TRANSLATE_NOOP("Message", "the old file cannot be replaced (%1)"), errno);
    }
    m_committed = true;
    m_temporary.setAutoRemove(false);
    const fs::path folderPath = fs::path(m_target).parent_path();
    const OpenFile folder(open(folderPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen()) {
        fsync(folder.descriptor());
    }
    return true;
}

// Without a temporary name a process that is killed leaves nothing. That is possible only if there is no old file.
bool ReplacementFile::linkToTarget()
{
    const std::string file = pathOfOpenFile(m_file.descriptor());
    struct stat status {
    };
    return fstat(m_file.descriptor(), &status) == 0 && status.st_nlink == 0 &&
           linkat(AT_FDCWD, file.c_str(), AT_FDCWD, m_target.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

// The temporary name is given to the file when it is first asked for.
bool ReplacementFile::renameToTarget()
{
    const QByteArray name = QFile::encodeName(m_temporary.fileName());
    return std::rename(name.constData(), m_target.c_str()) == 0;
}

bool ReplacementFile::copyAccess()
{
    const int file = m_file.descriptor();
    struct stat status {
    };
    if (stat(m_target.c_str(), &status) != 0) {
        return setMode(file, newFileMode & ~fileMask());
    }
    const bool sameGroup = fchown(file, static_cast<uid_t>(-1), status.st_gid) == 0;
    // Only the administrator may give a file to somebody else.
    [[maybe_unused]] const int given = fchown(file, status.st_uid, static_cast<gid_t>(-1));
    copyUserAttributes(m_target, file);
    const mode_t mode = status.st_mode & allPermissions;
    if (!setMode(file, sameGroup ? mode : withoutGroup(mode))) {
        return false;
    }
    // With an access list, the group's permissions are those of the whole list.
    return !sameGroup || copyAttribute(m_target, file, "system.posix_acl_access") || setMode(file, withoutGroup(mode));
}

} // namespace grisal::graphics
