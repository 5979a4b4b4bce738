// SPDX-License-Identifier: MIT
#include "graphics/files/ReplacementFile.h"
#include "tests/graphics/files/ReplacementFileTest.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace
{

using namespace grisal::test;
using grisal::graphics::ReplacementFile;

/// Replaces a file in a child process and kills it at the start or end of the system call with this number. Returns
/// false if the process has ended before.
bool replaceAndKill(const QString &path, const QByteArray &contents, int systemCallStops)
{
    const pid_t process = fork();
    if (process == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
            std::_Exit(EXIT_FAILURE);
        }
        std::raise(SIGSTOP);
        replace(path, contents);
        std::_Exit(EXIT_SUCCESS);
    }
    int status = 0;
    waitpid(process, &status, 0);
    for (int i = 0; i < systemCallStops && WIFSTOPPED(status); ++i) {
        ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
        waitpid(process, &status, 0);
    }
    const bool killed = WIFSTOPPED(status);
    if (killed) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    return killed;
}

mode_t modeOf(const QString &path)
{
    struct stat status {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST_F(ReplacementFileTest, CreatesAFile)
{
    const mode_t before = umask(022);
    EXPECT_TRUE(replace(path("a.png"), "new"));
    umask(before);
    EXPECT_EQ(contentsOf(path("a.png")), "new");
    EXPECT_EQ(modeOf(path("a.png")), 0644U);
    EXPECT_EQ(names(), QStringList("a.png"));
}

TEST_F(ReplacementFileTest, ReplacesAFileAndKeepsItsPermissions)
{
    writeFile(path("a.png"), "old");
    ASSERT_EQ(chmod(QFile::encodeName(path("a.png")).constData(), 0640), 0);
    EXPECT_TRUE(replace(path("a.png"), "new"));
    EXPECT_EQ(contentsOf(path("a.png")), "new");
    EXPECT_EQ(modeOf(path("a.png")), 0640U);
    EXPECT_EQ(names(), QStringList("a.png"));
}

TEST_F(ReplacementFileTest, KeepsTheOldFileUntilCommit)
{
    writeFile(path("a.png"), "old");
    {
        const ReplacementFile file(path("a.png"));
        put(file, "new");
        EXPECT_EQ(contentsOf(path("a.png")), "old");
    }
    EXPECT_EQ(contentsOf(path("a.png")), "old");
    EXPECT_EQ(names(), QStringList("a.png"));
}

TEST_F(ReplacementFileTest, FollowsALinkAndLeavesItALink)
{
    ASSERT_TRUE(QDir(directory.path()).mkdir("folder"));
    writeFile(path("folder/a.png"), "old");
    ASSERT_TRUE(QFile::link("folder/a.png", path("b.png")));
    ASSERT_TRUE(QFile::link("b.png", path("c.png")));
    EXPECT_TRUE(replace(path("c.png"), "new"));
    EXPECT_EQ(contentsOf(path("folder/a.png")), "new");
    EXPECT_TRUE(QFileInfo(path("c.png")).isSymLink());
    EXPECT_TRUE(QFileInfo(path("b.png")).isSymLink());
}

TEST_F(ReplacementFileTest, CreatesTheMissingTargetOfALink)
{
    ASSERT_TRUE(QFile::link("a.png", path("b.png")));
    EXPECT_TRUE(replace(path("b.png"), "new"));
    EXPECT_EQ(contentsOf(path("a.png")), "new");
    EXPECT_TRUE(QFileInfo(path("b.png")).isSymLink());
}

// A relative link starts in the folder that contains the link, not in the path that leads there.
TEST_F(ReplacementFileTest, FollowsLinksThroughLinkedFolders)
{
    QDir root(directory.path());
    for (const char *folder : {"home", "home/2019", "data", "data/2019", "data/best"}) {
        ASSERT_TRUE(root.mkdir(folder));
    }
    writeFile(path("home/2019/a.png"), "another");
    writeFile(path("data/2019/a.png"), "old");
    ASSERT_EQ(symlink("../data/best", QFile::encodeName(path("home/Best")).constData()), 0);
    ASSERT_EQ(symlink("../2019/a.png", QFile::encodeName(path("data/best/a.png")).constData()), 0);
    EXPECT_TRUE(replace(path("home/Best/a.png"), "new"));
    EXPECT_EQ(contentsOf(path("data/2019/a.png")), "new");
    EXPECT_EQ(contentsOf(path("home/2019/a.png")), "another");
    EXPECT_TRUE(replace(path("home/Best/../x.png"), "new"));
    EXPECT_EQ(contentsOf(path("data/x.png")), "new");
    EXPECT_FALSE(QFile::exists(path("home/x.png")));
}

TEST_F(ReplacementFileTest, CreatesTheMissingTargetOfALinkInALinkedFolder)
{
    QDir root(directory.path());
    for (const char *folder : {"home", "home/2019", "data", "data/2019", "data/best"}) {
        ASSERT_TRUE(root.mkdir(folder));
    }
    ASSERT_EQ(symlink("../data/best", QFile::encodeName(path("home/Best")).constData()), 0);
    ASSERT_EQ(symlink("../2019/a.png", QFile::encodeName(path("data/best/a.png")).constData()), 0);
    EXPECT_TRUE(replace(path("home/Best/a.png"), "new"));
    EXPECT_EQ(contentsOf(path("data/2019/a.png")), "new");
    EXPECT_FALSE(QFile::exists(path("home/2019/a.png")));
    EXPECT_TRUE(QFileInfo(path("data/best/a.png")).isSymLink());
}

TEST_F(ReplacementFileTest, NeverGivesMoreAccessThanTheOldFile)
{
    writeFile(path("a.png"), "old");
    ASSERT_EQ(chmod(QFile::encodeName(path("a.png")).constData(), 0600), 0);
    const ReplacementFile file(path("a.png"));
    struct stat status {
    };
    ASSERT_EQ(fstat(file.file().descriptor(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    ASSERT_EQ(chmod(QFile::encodeName(path("a.png")).constData(), 06755), 0);
    EXPECT_TRUE(replace(path("a.png"), "new"));
    EXPECT_EQ(modeOf(path("a.png")), 0755U);
}

TEST_F(ReplacementFileTest, KeepsUserAttributes)
{
    writeFile(path("a.png"), "old");
    const QByteArray name = QFile::encodeName(path("a.png"));
    if (setxattr(name.constData(), "user.comment", "best", 4, 0) != 0) {
        GTEST_SKIP() << "this file system keeps no notes";
    }
    EXPECT_TRUE(replace(path("a.png"), "new"));
    char note[4] = {};
    EXPECT_EQ(getxattr(name.constData(), "user.comment", note, sizeof note), 4);
    EXPECT_EQ(QByteArray(note, 4), "best");
}

// The list in the format of the kernel: version 2, then tag, permissions and id of the owner, user 7, the group, the
// mask and others.
TEST_F(ReplacementFileTest, KeepsTheAccessList)
{
    const QByteArray list = QByteArray::fromHex("02000000"
                                                "01000600ffffffff"
                                                "0200040007000000"
                                                "04000000ffffffff"
                                                "10000400ffffffff"
                                                "20000000ffffffff");
    constexpr const char *attribute = "system.posix_acl_access";
    writeFile(path("a.png"), "old");
    const QByteArray name = QFile::encodeName(path("a.png"));
    if (setxattr(name.constData(), attribute, list.constData(), static_cast<std::size_t>(list.size()), 0) != 0) {
        GTEST_SKIP() << "this file system keeps no access lists";
    }
    EXPECT_TRUE(replace(path("a.png"), "new"));
    QByteArray kept(100, '\0');
    kept.resize(std::max<qsizetype>(0, getxattr(name.constData(), attribute, kept.data(), 100)));
    EXPECT_EQ(kept, list);
}

TEST_F(ReplacementFileTest, ReplacesAFileWithTheLongestName)
{
    const QString name = QString(251, QLatin1Char('x')) + ".png";
    EXPECT_TRUE(replace(path(name), "old"));
    EXPECT_TRUE(replace(path(name), "new"));
    EXPECT_EQ(contentsOf(path(name)), "new");
    EXPECT_EQ(names(), QStringList(name));
}

TEST_F(ReplacementFileTest, FailsForNonRegularFiles)
{
    ASSERT_TRUE(QFile::link("/dev/full", path("full.png")));
    ASSERT_TRUE(QFile::link("loop-a.png", path("loop-b.png")));
    ASSERT_TRUE(QFile::link("loop-b.png", path("loop-a.png")));
    ASSERT_TRUE(QDir(directory.path()).mkdir("folder.png"));
    const QStringList before = names();
    for (const char *name : {"full.png", "loop-a.png", "folder.png", "nowhere/a.png"}) {
        EXPECT_FALSE(ReplacementFile(path(name)).problem().isEmpty()) << name;
        EXPECT_FALSE(replace(path(name), "new")) << name;
    }
    EXPECT_EQ(names(), before);
}

TEST_F(ReplacementFileTest, FailsWhenTheFolderIsRemoved)
{
    ASSERT_TRUE(QDir(directory.path()).mkdir("folder"));
    ReplacementFile file(path("folder/a.png"));
    ASSERT_TRUE(file.problem().isEmpty());
    put(file, "new");
    ASSERT_TRUE(QDir(path("folder")).removeRecursively());
    EXPECT_FALSE(file.commit());
    EXPECT_FALSE(file.problem().isEmpty());
}

TEST_F(ReplacementFileTest, CommittedFileIsNotEnlargedToTestTheDisk)
{
    ReplacementFile file(path("a.png"));
    put(file, "new");
    ASSERT_TRUE(file.commit());
    EXPECT_TRUE(file.shortageOfSpace().isEmpty());
    EXPECT_EQ(contentsOf(path("a.png")), "new");
}

/// Runs a step in a child process; returns its result.
template <typename Step>
bool inChildProcess(Step step)
{
    const pid_t process = fork();
    if (process == 0) {
        _exit(step() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// The same as an ordinary user.
template <typename Step>
bool asAnybody(Step step)
{
    constexpr uid_t nobody = 65534;
    return inChildProcess([&] { return (geteuid() != 0 || setresuid(nobody, nobody, nobody) == 0) && step(); });
}

TEST_F(ReplacementFileTest, DoesNotReplaceReadOnlyFiles)
{
    writeFile(path("a.png"), "old");
    ASSERT_EQ(chmod(QFile::encodeName(path("a.png")).constData(), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(directory.path()).constData(), 0777), 0);
    EXPECT_TRUE(asAnybody([&] { return !replace(path("a.png"), "new") && replace(path("b.png"), "new"); }));
    EXPECT_EQ(contentsOf(path("a.png")), "old");
    EXPECT_EQ(contentsOf(path("b.png")), "new");
}

TEST_F(ReplacementFileTest, DoesNotReplaceFilesInReadOnlyFolders)
{
    writeFile(path("a.png"), "old");
    ASSERT_EQ(chmod(QFile::encodeName(path("a.png")).constData(), 0666), 0);
    ASSERT_EQ(chmod(QFile::encodeName(directory.path()).constData(), 0555), 0);
    EXPECT_TRUE(asAnybody([&] { return !replace(path("a.png"), "new") && !replace(path("b.png"), "new"); }));
    ASSERT_EQ(chmod(QFile::encodeName(directory.path()).constData(), 0755), 0);
    EXPECT_EQ(contentsOf(path("a.png")), "old");
    EXPECT_EQ(names(), QStringList("a.png"));
}

TEST_F(ReplacementFileTest, IsCompleteWheneverTheProcessIsKilled)
{
    int kills = 0;
    int replaced = 0;
    writeFile(path("a.png"), "old");
    while (replaceAndKill(path("a.png"), "new", kills)) {
        const QByteArray now = contentsOf(path("a.png"));
        ASSERT_TRUE(now == "old" || now == "new") << "killed after " << kills << " stops: " << now.toStdString();
        replaced += now == "new" ? 1 : 0;
        ++kills;
        // Every child process generates the same random names, so the next one would collide with these files.
        for (const QString &name : names().filter(QStringLiteral(".grisal-"))) {
            QFile::remove(path(name));
        }
        writeFile(path("a.png"), "old");
    }
    EXPECT_EQ(contentsOf(path("a.png")), "new");
    EXPECT_GT(replaced, 0);
    EXPECT_LT(replaced, kills);
}

TEST_F(ReplacementFileTest, RemovesTemporaryFilesOfKilledProcesses)
{
    int kills = 0;
    int left = 0;
    writeFile(path("a.png"), "old");
    while (replaceAndKill(path("a.png"), "new", kills)) {
        left += static_cast<int>(names().size()) - 1;
        // A process searches a folder once only.
        ASSERT_TRUE(inChildProcess([&] { return replace(path("a.png"), "old"); }));
        ASSERT_EQ(names(), QStringList("a.png")) << "killed after " << kills << " stops";
        ++kills;
    }
    EXPECT_GT(left, 0);
}

TEST_F(ReplacementFileTest, SearchesAFolderForLeftoversOnlyOnce)
{
    ASSERT_TRUE(replace(path("a.png"), "old"));
    const QString leftover = QStringLiteral(".grisal-0123456789abcdef-1-aBcDeF");
    writeFile(path(leftover), "pixels");
    const timespec longAgo[2]{};
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(path(leftover)).constData(), longAgo, 0), 0);

    ASSERT_TRUE(replace(path("a.png"), "new"));
    EXPECT_EQ(names(), (QStringList{leftover, "a.png"}));
}

TEST_F(ReplacementFileTest, LeavesNothingIfTheProcessIsKilledWhileItCreatesAFile)
{
    const int unnamed = open(QFile::encodeName(directory.path()).constData(), O_TMPFILE | O_WRONLY, 0600);
    if (unnamed < 0) {
        GTEST_SKIP() << "this file system has no files without names";
    }
    close(unnamed);
    int kills = 0;
    while (replaceAndKill(path("a.png"), "new", kills)) {
        ASSERT_EQ(names().filter(QStringLiteral(".grisal-")), QStringList()) << "killed after " << kills << " stops";
        QFile::remove(path("a.png"));
        ++kills;
    }
    EXPECT_EQ(contentsOf(path("a.png")), "new");
}

} // namespace
