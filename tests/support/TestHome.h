// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace grisal::test
{

/// The temporary folder of a test program, with all that it writes: an empty home directory with the settings, cache
/// and data directories, and the folder for temporary files. To be created before the application object. Throws if the
/// system has no folder for temporary files: tests would then write into the root of the file system.
class TestHome
{
public:
    TestHome();

    /// Whether the tests have removed their temporary files and left TMPDIR as it was, and the folder can be removed.
    /// To be called after the last test; reports on standard error what was left.
    bool isCleanAtEnd();

private:
    QTemporaryDir m_directory;
};

} // namespace grisal::test
