// SPDX-License-Identifier: MIT
// Saving on a file system that has no files without names, as NFS.
#include "graphics/files/ReplacementFile.h"
#include "tests/graphics/files/ReplacementFileTest.h"

#include <gtest/gtest.h>
#include <QFile>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>

namespace
{

using namespace grisal::test;
using grisal::graphics::ReplacementFile;

/// From now on, creating a file without a name fails in this process as it does on NFS. Returns false if the system
/// does not allow such a filter.
bool forbidUnnamedFiles()
{
    constexpr auto unnamed = static_cast<unsigned>(O_TMPFILE & ~O_DIRECTORY);
    std::array<sock_filter, 6> program{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, unnamed, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

class ReplacementFileWithoutUnnamedFiles : public ReplacementFileTest
{
protected:
    /// Runs a step in a child process that cannot create files without names; returns its result. Without such a
    /// process, the test is skipped.
    template <typename Step>
    void runWithoutUnnamedFiles(Step step)
    {
        constexpr int noFilter = 2;
        const QByteArray folder = QFile::encodeName(directory.path());
        const pid_t process = fork();
        if (process == 0) {
            if (!forbidUnnamedFiles()) {
                _exit(noFilter);
            }
            const bool rejected =
                open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600) < 0 && errno == EOPNOTSUPP;
            _exit(rejected && step() ? EXIT_SUCCESS : EXIT_FAILURE);
        }
        int status = 0;
        waitpid(process, &status, 0);
        ASSERT_TRUE(WIFEXITED(status));
        if (WEXITSTATUS(status) == noFilter) {
            GTEST_SKIP() << "system calls cannot be filtered here";
        }
        EXPECT_EQ(WEXITSTATUS(status), EXIT_SUCCESS);
    }

    QStringList temporaryNames() const { return names().filter(QStringLiteral(".grisal-")); }
};

TEST_F(ReplacementFileWithoutUnnamedFiles, CreatesAFileUnderATemporaryName)
{
    runWithoutUnnamedFiles([this] {
        ReplacementFile file(path("a.png"));
        put(file, "new");
        return temporaryNames().size() == 1 && names() == temporaryNames() && file.commit();
    });
    if (!IsSkipped()) {
        EXPECT_EQ(contentsOf(path("a.png")), "new");
        EXPECT_EQ(names(), QStringList("a.png"));
    }
}

TEST_F(ReplacementFileWithoutUnnamedFiles, ReplacesAFile)
{
    writeFile(path("a.png"), "old");
    runWithoutUnnamedFiles([this] { return replace(path("a.png"), "new"); });
    if (!IsSkipped()) {
        EXPECT_EQ(contentsOf(path("a.png")), "new");
        EXPECT_EQ(names(), QStringList("a.png"));
    }
}

TEST_F(ReplacementFileWithoutUnnamedFiles, RemovesTheTemporaryFileWithoutCommit)
{
    runWithoutUnnamedFiles([this] {
        const ReplacementFile file(path("a.png"));
        put(file, "new");
        return temporaryNames().size() == 1;
    });
    EXPECT_EQ(names(), QStringList());
}

TEST_F(ReplacementFileWithoutUnnamedFiles, NextSaveRemovesTheTemporaryFileOfAKilledProcess)
{
    runWithoutUnnamedFiles([this] {
        const ReplacementFile file(path("a.png"));
        put(file, "new");
        _exit(EXIT_SUCCESS);
        return true;
    });
    if (!IsSkipped()) {
        EXPECT_EQ(temporaryNames().size(), 1);
        EXPECT_TRUE(replace(path("b.png"), "new"));
        EXPECT_EQ(names(), QStringList("b.png"));
    }
}

} // namespace
