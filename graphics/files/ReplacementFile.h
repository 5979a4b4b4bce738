// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"
#include "graphics/Message.h"

#include <QString>
#include <QTemporaryFile>

#include <string>

namespace grisal::graphics
{

/// A new file that replaces another one, or none, atomically and only when it is complete: at every moment the path
/// leads to all of the old file or to all of the new one, also after a crash or a power cut.
///
/// It is written without a name in the same folder, or under a temporary name where the file system has no files
/// without names, and is removed if it is not committed. A process that is killed may leave a temporary name behind
/// (LeftoverFiles.h), while it replaces another file or on such a file system; the first ReplacementFile of a process
/// in that folder removes it, on another system after a day. A link is followed as the system follows it and stays a
/// link; another hard link to the old file keeps the old file. The new file gets the old one's permissions with its
/// access list, its extended attributes and its owner as far as that is allowed, and never gives more access than the
/// old one. Read-only files are not replaced.
class ReplacementFile
{
public:
    explicit ReplacementFile(const QString &path);
    ReplacementFile(const ReplacementFile &) = delete;
    ReplacementFile &operator=(const ReplacementFile &) = delete;
    ~ReplacementFile();

    /// Why there is no file to write to, or why it did not replace the old one; empty if there is no problem.
    const Message &problem() const { return m_problem; }

    /// The file to write; only without a problem.
    const OpenFile &file() const { return m_file; }

    /// Why the disk has no space for more of the file; empty if it has, or after the file was committed.
    Message shortageOfSpace() const;

    /// Writes the file to the disk and replaces the old one. False, with the old file still there, if that fails.
    bool commit();

private:
    bool findTarget(const QString &path);
    bool copyAccess();
    bool linkToTarget();
    bool renameToTarget();
    bool fail(const char *what, int error);

    std::string m_target; ///< the path at the end of all links
    QTemporaryFile m_temporary;
    OpenFile m_file; ///< the descriptor of m_temporary, which owns it
    Message m_problem;
    bool m_committed = false;
};

} // namespace grisal::graphics
