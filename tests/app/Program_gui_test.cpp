// SPDX-License-Identifier: MIT
// The program as a process: its window and its log.
#include "tests/graphics/files/PictureFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace
{

using namespace grisal::test;

class Program : public testing::Test
{
protected:
    Program()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
        environment.remove(QStringLiteral("MESA_SHADER_CACHE_DISABLE"));
        process.setProcessEnvironment(environment);
    }

    void setEnvironment(const QString &name, const QString &value)
    {
        QProcessEnvironment environment = process.processEnvironment();
        environment.insert(name, value);
        process.setProcessEnvironment(environment);
    }

    void removeDisplay()
    {
        QProcessEnvironment environment = process.processEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":98765"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        process.setProcessEnvironment(environment);
    }

    void start() { process.start(QStringLiteral(GRISAL_PROGRAM), QStringList()); }

    void end()
    {
        process.kill();
        process.waitForFinished();
    }

    QByteArray logged() const { return contentsOf(home.filePath(QStringLiteral("GrisalLog.txt"))); }

    bool waitForLog(const char *part, int times = 1)
    {
        return QTest::qWaitFor([&] { return logged().count(part) >= times; }, 10000);
    }

    /// Number of pixels on the screen in the grey of the placeholder.
    static int greyPixels()
    {
        const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
        int count = 0;
        for (int y = 0; y < screen.height(); ++y) {
            for (int x = 0; x < screen.width(); ++x) {
                count += screen.pixelColor(x, y) == QColor(128, 128, 128) ? 1 : 0;
            }
        }
        return count;
    }

    const QTemporaryDir home;
    QProcess process;
};

TEST_F(Program, ShowsAGreyPlaceholderAtTheStart)
{
    start();
    // The preview is at least 300 pixels wide, and the image of 300 x 200 is fitted into it with a margin of 1 percent.
    EXPECT_TRUE(QTest::qWaitFor([] { return greyPixels() > 297 * 197; }, 10000)) << greyPixels();
    EXPECT_TRUE(logged().contains("Preview Width:  300"));
    EXPECT_TRUE(logged().contains("Preview Height:  200"));
    end();
}

// A cache of the OpenGL driver there would end the program on a full disk.
TEST_F(Program, LeavesNoShaderCacheInTheHome)
{
    setEnvironment(QStringLiteral("XDG_CACHE_HOME"), home.filePath(QStringLiteral(".cache")));
    start();
    ASSERT_TRUE(waitForLog("Max Texture Size"));
    end();
    const QDir cache(home.filePath(QStringLiteral(".cache")));
    EXPECT_EQ(cache.entryList({QStringLiteral("mesa_shader_cache*")}), QStringList());
}

TEST_F(Program, AppendsToTheLogOfEarlierRuns)
{
    start();
    ASSERT_TRUE(waitForLog("Max Texture Size"));
    end();
    const QByteArray first = logged();
    start();
    ASSERT_TRUE(waitForLog("Max Texture Size", 2));
    end();
    EXPECT_TRUE(logged().startsWith(first));
}

// The program works without a log.
TEST_F(Program, RunsIfTheLogPathIsAFolder)
{
    ASSERT_TRUE(QDir(home.path()).mkdir(QStringLiteral("GrisalLog.txt")));
    start();
    EXPECT_TRUE(QTest::qWaitFor([] { return greyPixels() > 297 * 197; }, 10000)) << greyPixels();
    EXPECT_EQ(process.state(), QProcess::Running);
    end();
    EXPECT_TRUE(QFileInfo(home.filePath(QStringLiteral("GrisalLog.txt"))).isDir());
}

// A test fails by its time limit where the program waits for a reader or a writer of the pipe.
TEST_F(Program, StartsIfTheLogIsAPipe)
{
    const QString log = home.filePath(QStringLiteral("GrisalLog.txt"));
    ASSERT_EQ(mkfifo(QFile::encodeName(log).constData(), 0600), 0);
    start();
    EXPECT_TRUE(QTest::qWaitFor([] { return greyPixels() > 297 * 197; }, 10000)) << greyPixels();
    end();
    EXPECT_TRUE(process.readAllStandardError().contains("The log " + QFile::encodeName(log) + " cannot be written.\n"));
}

TEST_F(Program, StartsIfTheSettingsAreAPipe)
{
    const QString folder = home.filePath(QStringLiteral(".config/grisal.example"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QByteArray settings = QFile::encodeName(folder) + "/Quillmark.conf";
    ASSERT_EQ(mkfifo(settings.constData(), 0600), 0);
    setEnvironment(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral(".config")));
    start();
    EXPECT_TRUE(QTest::qWaitFor([] { return greyPixels() > 297 * 197; }, 10000)) << greyPixels();
    end();
    const QByteArray problem =
        "The settings cannot be used, because " + settings + " is too large or is not a regular file.\n";
    EXPECT_TRUE(process.readAllStandardError().contains(problem));
    EXPECT_TRUE(logged().contains(" Warning: " + problem)) << logged().toStdString();
}

TEST_F(Program, ReportsAMissingDisplayOnTheConsoleAndEndsWithStatus1)
{
    removeDisplay();
    start();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QByteArray output = process.readAllStandardError();
    EXPECT_TRUE(output.contains("there is no display that can be reached")) << output.toStdString();
    EXPECT_TRUE(logged().contains("Fatal: ")) << logged().toStdString();
}

TEST_F(Program, ReportsAnUnknownWindowSystemOnTheConsoleAndEndsWithStatus1)
{
    setEnvironment(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("unknown"));
    start();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QByteArray output = process.readAllStandardError();
    EXPECT_TRUE(output.contains("no window system with the name in QT_QPA_PLATFORM")) << output.toStdString();
}

// Without a display, Qt ends the program in the constructor of the application object.
TEST_F(Program, StartsGraphicsMagickBeforeQt)
{
    removeDisplay();
    setEnvironment(QStringLiteral("MAGICK_DEBUG"), QStringLiteral("configure"));
    start();
    ASSERT_TRUE(process.waitForFinished());
    const QByteArray output = process.readAllStandardError();
    EXPECT_TRUE(output.contains("Initialize Magick")) << output.toStdString();
}

} // namespace
