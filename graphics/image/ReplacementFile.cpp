// SPDX-License-Identifier: MIT
#include "graphics/image/ReplacementFile.h"

#include "graphics/image/PictureFormat.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace grisal::graphics
{

namespace
{

constexpr mode_t newFileMode = 0666;
constexpr int mostLinks = 40;

/// The path at the end of all links, whether or not there is a file; empty where the links go in circles.
QString endOfLinks(QString path)
{
    for (int i = 0; i < mostLinks; ++i) {
        const QFileInfo file(path);
        if (!file.isSymLink()) {
            return file.absoluteFilePath();
        }
        path = file.symLinkTarget();
    }
    return {};
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
    const QString end = endOfLinks(path);
    if (end.isEmpty()) {
        m_problem = QStringLiteral("The link leads nowhere");
        return;
    }
    m_target = QFile::encodeName(end);
    m_folder = QFile::encodeName(QFileInfo(end).absolutePath());
    struct stat status {
    };
    if (stat(m_target.constData(), &status) != 0) {
        if (errno != ENOENT) {
            fail("The file cannot be reached");
        }
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
    m_file = OpenFile(open(m_folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, newFileMode));
    if (m_file.isOpen()) {
        return;
    }
    // Some network drives know no files without names.
    const QByteArray extension = QFile::encodeName(QFileInfo(QFile::decodeName(m_target)).suffix());
    QByteArray name = m_folder + "/.grisal-XXXXXX." + extension;
    m_file = OpenFile(mkostemps(name.data(), static_cast<int>(extension.size()) + 1, O_CLOEXEC));
    if (!m_file.isOpen()) {
        fail("The folder cannot be written to");
        return;
    }
    m_temporary = name;
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(m_file.descriptor(), newFileMode & ~mask);
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
        return true;
    }
    // Only the administrator may give a file to somebody else. A change of owner takes permissions away, so it comes
    // first.
    [[maybe_unused]] const int given = fchown(m_file.descriptor(), status.st_uid, status.st_gid);
    return fchmod(m_file.descriptor(), status.st_mode & 07777) == 0;
}

bool ReplacementFile::takePlace()
{
    if (m_temporary.isEmpty() && !giveName()) {
        return false;
    }
    if (rename(m_temporary.constData(), m_target.constData()) != 0) {
        return false;
    }
    m_temporary.clear();
    return true;
}

// A file without a name cannot be renamed over another one.
bool ReplacementFile::giveName()
{
    const QByteArray name = m_folder + "/.grisal-" + QUuid::createUuid().toByteArray(QUuid::Id128);
    const std::string source = nameOfOpenFile(m_file.descriptor());
    if (linkat(AT_FDCWD, source.c_str(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) != 0) {
        return false;
    }
    m_temporary = name;
    return true;
}

} // namespace grisal::graphics
