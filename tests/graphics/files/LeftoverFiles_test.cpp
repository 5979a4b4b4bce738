// SPDX-License-Identifier: MIT
#include "graphics/files/LeftoverFiles.h"
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <ctime>

namespace
{

using namespace grisal::test;
using grisal::graphics::removeLeftoverFiles;
using grisal::graphics::temporaryNameTemplate;

constexpr std::time_t day = 24 * 60 * 60;

/// The id of a process that has ended.
pid_t endedProcess()
{
    const pid_t process = fork();
    if (process == 0) {
        _exit(0);
    }
    waitpid(process, nullptr, 0);
    return process;
}

/// A temporary name as a process with this id gives it on this system.
QString nameOf(pid_t process)
{
    QStringList parts = QString::fromStdString(temporaryNameTemplate()).split('-');
    parts[2] = QString::number(process);
    parts[3] = QStringLiteral("aBcDeF");
    return parts.join('-');
}

/// The same on another system.
QString foreignNameOf(pid_t process)
{
    QStringList parts = nameOf(process).split('-');
    parts[1] = parts[1] == QStringLiteral("0123456789abcdef") ? QStringLiteral("fedcba9876543210")
                                                              : QStringLiteral("0123456789abcdef");
    return parts.join('-');
}

class LeftoverFiles : public testing::Test
{
protected:
    QString path(const QString &name) const { return directory.filePath(name); }

    void put(const QString &name) const { writeFile(path(name), "pixels"); }

    /// The names in the folder after the removal, some time after now.
    QStringList namesAfterRemoval(std::time_t later = 0) const
    {
        removeLeftoverFiles(QFile::encodeName(directory.path()).toStdString(), std::time(nullptr) + later);
        return QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir directory;
};

TEST_F(LeftoverFiles, AreRemovedAfterTheEndOfTheirProcess)
{
    put(nameOf(endedProcess()));
    put("a.png");
    EXPECT_EQ(namesAfterRemoval(), QStringList("a.png"));
}

TEST_F(LeftoverFiles, AreKeptWhileTheirProcessRuns)
{
    const QString name = nameOf(getpid());
    put(name);
    EXPECT_EQ(namesAfterRemoval(), QStringList(name));
}

TEST_F(LeftoverFiles, AreRemovedAfterADayIfTheProcessIdIsInUse)
{
    put(nameOf(getpid()));
    EXPECT_EQ(namesAfterRemoval(day + 60), QStringList());
}

TEST_F(LeftoverFiles, AreKeptForADayIfFromAnotherSystem)
{
    const QString name = foreignNameOf(endedProcess());
    put(name);
    EXPECT_EQ(namesAfterRemoval(day - 60), QStringList(name));
    EXPECT_EQ(namesAfterRemoval(day + 60), QStringList());
}

TEST_F(LeftoverFiles, FilesWithOtherNamesAreKept)
{
    const QString name = nameOf(endedProcess());
    QStringList others{name + 'x',
                       name.chopped(1),
                       name.mid(1),
                       'x' + name,
                       name.chopped(1) + '.',
                       name.chopped(1) + "\n",
                       QString(name).replace("grisal", "Grisal"),
                       nameOf(0),
                       nameOf(-1),
                       ".grisal-aBcDeF",
                       ".grisal",
                       "grisal.png"};
    for (const QString &other : others) {
        put(other);
    }
    others.sort();
    QStringList names = namesAfterRemoval(2 * day);
    names.sort();
    EXPECT_EQ(names, others);
}

TEST_F(LeftoverFiles, LinksAndFoldersAreKept)
{
    const pid_t process = endedProcess();
    put("a.png");
    ASSERT_TRUE(QFile::link("a.png", path(nameOf(process))));
    ASSERT_TRUE(QDir(directory.path()).mkdir(foreignNameOf(process)));
    EXPECT_EQ(namesAfterRemoval(2 * day).size(), 3);
}

TEST_F(LeftoverFiles, FilesOfOtherUsersAreKept)
{
    constexpr uid_t nobody = 65534;
    const QString name = nameOf(endedProcess());
    put(name);
    if (chown(QFile::encodeName(path(name)).constData(), nobody, static_cast<gid_t>(-1)) != 0) {
        GTEST_SKIP() << "only the administrator can give files away";
    }
    EXPECT_EQ(namesAfterRemoval(2 * day), QStringList(name));
}

TEST_F(LeftoverFiles, MissingFolderIsIgnored)
{
    removeLeftoverFiles(QFile::encodeName(path("missing")).toStdString(), std::time(nullptr));
    EXPECT_EQ(namesAfterRemoval(), QStringList());
}

} // namespace
