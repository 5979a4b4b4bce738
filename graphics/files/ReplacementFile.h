// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

#include <QByteArray>
#include <QString>

#include <string>

namespace grisal::graphics
{

/// A new file that takes the place of another one, or of none, at once and only when it is whole: at every moment the
/// path leads to all of the old file or to all of the new one, also after a crash or a power cut.
///
/// It is written without a name in the same folder, or under a temporary one where the file system does not know files
/// without names, and is gone if it is not committed. A process that is killed may leave a temporary name behind
/// ("." first), in the moment of the replacement or on such a file system. A link is followed as the system follows it
/// and stays a link; another hard link to the old file keeps the old file. The new file gets the old one's permissions
/// with its access list, its attributes and its owner as far as that is allowed, and never gives more access than the
/// old one. Files that are not to be written are not replaced.
class ReplacementFile
{
public:
    explicit ReplacementFile(const QString &path);
    ReplacementFile(const ReplacementFile &) = delete;
    ReplacementFile &operator=(const ReplacementFile &) = delete;
    ~ReplacementFile();

    /// Why there is no file to write to, or why it did not take its place; empty while all is well.
    QString problem() const { return m_problem; }

    /// The file to write; only without a problem.
    const OpenFile &file() const { return m_file; }

    /// Brings the file to the disk and puts it in its place. False, with the old file still there, if that fails.
    bool commit();

private:
    void findTarget(const QString &path);
    void openTemporary();
    bool takePermissions();
    bool takePlace();
    bool giveName(const QByteArray &name);
    bool fail(const char *what);

    QByteArray m_target;    ///< the path at the end of all links
    QByteArray m_folder;    ///< where it lies
    QByteArray m_temporary; ///< name of the new file while it has one
    OpenFile m_file;
    QString m_problem;
};

} // namespace grisal::graphics
