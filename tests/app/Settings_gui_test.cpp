// SPDX-License-Identifier: MIT
#include "app/Settings.h"
#include "tests/support/GuiTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <sys/stat.h>

namespace
{

using namespace grisal::test;

const QString key = QStringLiteral("lastDirectory");

class SettingsTest : public GuiTest
{
protected:
    SettingsTest() { QDir().mkpath(QFileInfo(Settings::fileName()).path()); }

    static void write(const QString &path, const QByteArray &contents)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    static void makePipe(const QString &path) { ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0); }

    static QString lock() { return Settings::fileName() + QStringLiteral(".lock"); }
};

TEST_F(SettingsTest, AreStoredInTheFile)
{
    EXPECT_TRUE(Settings::problem().isEmpty());
    Settings().setValue(key, QStringLiteral("/pictures"));
    EXPECT_EQ(Settings().value(key).toString(), QStringLiteral("/pictures"));
    QFile file(Settings::fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "[General]\nlastDirectory=/pictures\n");
    Settings().remove(key);
    EXPECT_FALSE(Settings().value(key).isValid());
}

TEST_F(SettingsTest, AreEmptyIfAFileIsAPipe)
{
    for (const QString &path : {Settings::fileName(), inHome(QStringLiteral(".config/grisal.example.conf"))}) {
        makePipe(path);
        EXPECT_TRUE(Settings::problem().english().contains(path));
        expectWarning(QStringLiteral("The settings cannot be stored: "));
        Settings().setValue(key, QStringLiteral("/pictures"));
        EXPECT_FALSE(Settings().value(key).isValid());
        QFile::remove(path);
    }
}

TEST_F(SettingsTest, AreEmptyIfTheFileIsTooLarge)
{
    write(Settings::fileName(), "[General]\nlastDirectory=/pictures\n" + QByteArray(1 << 20, '\n'));
    EXPECT_FALSE(Settings::problem().isEmpty());
    EXPECT_FALSE(Settings().value(key).isValid());
}

TEST_F(SettingsTest, AreReadDespiteALock)
{
    write(Settings::fileName(), "[General]\nlastDirectory=/pictures\n");
    write(lock(), "1234\ngrisal\nanother-machine\n\n\n");
    EXPECT_EQ(Settings().value(key).toString(), QStringLiteral("/pictures"));
}

TEST_F(SettingsTest, AreNotStoredIfAnotherMachineHoldsTheLock)
{
    write(lock(), "1234\ngrisal\nanother-machine\n\n\n");
    expectWarning(QStringLiteral("The settings cannot be stored: another program holds ") + lock());
    QElapsedTimer timer;
    timer.start();
    Settings().setValue(key, QStringLiteral("/pictures"));
    EXPECT_LT(timer.elapsed(), 20000); // QSettings waits for 30 seconds
    EXPECT_FALSE(Settings().value(key).isValid());
}

TEST_F(SettingsTest, AreNotStoredIfTheLockIsAPipe)
{
    makePipe(lock());
    expectWarning(QStringLiteral("The settings cannot be stored: another program holds ") + lock());
    Settings().setValue(key, QStringLiteral("/pictures"));
    EXPECT_FALSE(Settings().value(key).isValid());
}

TEST_F(SettingsTest, ReportWhetherAValueIsStored)
{
    EXPECT_TRUE(Settings().setValue(key, QStringLiteral("/pictures")));
    EXPECT_TRUE(Settings().remove(key));
    makePipe(lock());
    expectWarning(QStringLiteral("The settings cannot be stored: "));
    EXPECT_FALSE(Settings().remove(key));
}

TEST_F(SettingsTest, LogAFileThatCannotBeWritten)
{
    const QString folder = QFileInfo(Settings::fileName()).path();
    QDir(folder).removeRecursively();
    write(folder, "a file in place of the folder");
    expectWarning(Settings::fileName() + QStringLiteral(" cannot be written"));
    EXPECT_FALSE(Settings().setValue(key, QStringLiteral("/pictures")));
}

} // namespace
