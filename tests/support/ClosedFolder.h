// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <sys/stat.h>
#include <unistd.h>

namespace grisal::test
{

/// While it lives, the files of a folder cannot be reached by this process, not even by root, who becomes somebody else
/// for that time.
class ClosedFolder
{
public:
    explicit ClosedFolder(const QString &path) : m_path(QFile::encodeName(path))
    {
        chmod(m_path.constData(), 0);
        if (geteuid() == 0) {
            constexpr uid_t nobody = 65534;
            m_wasRoot = seteuid(nobody) == 0;
        }
    }
    ClosedFolder(const ClosedFolder &) = delete;
    ClosedFolder &operator=(const ClosedFolder &) = delete;
    ~ClosedFolder()
    {
        if (m_wasRoot) {
            [[maybe_unused]] const int back = seteuid(0);
        }
        chmod(m_path.constData(), S_IRWXU);
    }

private:
    QByteArray m_path;
    bool m_wasRoot = false;
};

} // namespace grisal::test
