// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <sys/stat.h>
#include <unistd.h>

namespace grisal::test
{

/// Makes the files of a folder inaccessible to this process during its lifetime, also for root, who becomes the user
/// nobody in the meantime.
class InaccessibleFolder
{
public:
    explicit InaccessibleFolder(const QString &path) : m_path(QFile::encodeName(path))
    {
        chmod(m_path.constData(), 0);
        if (geteuid() == 0) {
            constexpr uid_t nobody = 65534;
            m_wasRoot = seteuid(nobody) == 0;
        }
    }
    InaccessibleFolder(const InaccessibleFolder &) = delete;
    InaccessibleFolder &operator=(const InaccessibleFolder &) = delete;
    ~InaccessibleFolder()
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
