// SPDX-License-Identifier: MIT
// Starts the program, finds its windows by their titles and quits it by key.
#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

namespace
{

constexpr int limit = 20000;

class ProgramOnTheDesktop : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty()) << "xdotool is missing";
    }

    ~ProgramOnTheDesktop() override
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    /// Starts the program in its own home directory, optionally with an environment variable. Its language is English
    /// unless another one is requested, because its windows are found by their titles.
    void start(const char *variable = nullptr, const char *value = nullptr, const char *language = "en")
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        environment.insert(QStringLiteral("LANGUAGE"), QString::fromLatin1(language));
        if (variable != nullptr) {
            environment.insert(QString::fromLatin1(variable), QString::fromLatin1(value));
        }
        m_process.setProcessEnvironment(environment);
        m_process.setProgram(QStringLiteral(GRISAL_PROGRAM));
        m_process.start();
        ASSERT_TRUE(m_process.waitForStarted());
    }

    /// Sets the command line arguments, which are empty by default; to be called before start().
    void setArguments(const QStringList &arguments) { m_process.setArguments(arguments); }

    QString inHome(const QString &name) const { return m_home.filePath(name); }

    static QString xdotool(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral("xdotool"), arguments);
        process.waitForFinished(limit);
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    /// The ids of the program's visible windows with this title.
    QStringList windowsNamed(const QString &title) const
    {
        const QString pattern = QLatin1Char('^') + QRegularExpression::escape(title) + QLatin1Char('$');
        const QString found = xdotool({QStringLiteral("search"), QStringLiteral("--all"),
                                       QStringLiteral("--onlyvisible"), QStringLiteral("--pid"),
                                       QString::number(m_process.processId()), QStringLiteral("--name"), pattern});
        return found.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    /// Waits for the window with this title, which must be the only one.
    QString windowNamed(const QString &title) const
    {
        QStringList windows;
        const auto isThereOrEnded = [&] {
            windows = windowsNamed(title);
            return !windows.isEmpty() || m_process.state() != QProcess::Running;
        };
        static_cast<void>(QTest::qWaitFor(isThereOrEnded, limit));
        EXPECT_EQ(windows.size(), 1) << "windows named " << title.toStdString();
        return windows.value(0);
    }

    QString mainWindow() const { return windowNamed(QStringLiteral("Lumio Grisal (Alpha)")); }

    static void press(const QString &window, const QString &keys)
    {
        xdotool({QStringLiteral("windowfocus"), QStringLiteral("--sync"), window});
        xdotool({QStringLiteral("key"), QStringLiteral("--window"), window, keys});
        // A window that closes on a key press does not receive the release, so the key would repeat in the next window.
        xdotool({QStringLiteral("keyup"), keys});
    }

    /// The title of the open dialog in any language; empty if there is no such dialog.
    std::string openTitle() const
    {
        for (const char *title : {"Open Image", "Bild öffnen", "Ouvrir une image"}) {
            if (!windowsNamed(QString::fromUtf8(title)).isEmpty()) {
                return title;
            }
        }
        return {};
    }

    /// Opens the open dialog and returns its title, empty if it does not appear. The keys are pressed again if the
    /// window did not have the keyboard focus.
    std::string titleOfOpen()
    {
        const QString window = mainWindow();
        const QDeadlineTimer deadline(limit);
        std::string title;
        const auto isOpen = [&] {
            title = openTitle();
            return !title.empty();
        };
        do {
            press(window, QStringLiteral("ctrl+o"));
        } while (!QTest::qWaitFor(isOpen, 500) && !deadline.hasExpired());
        return title;
    }

    /// The standard error output of the program.
    QByteArray consoleErrors() { return m_process.readAllStandardError(); }

    /// Waits for the exit status; -1 if the program does not end or crashes.
    int exitStatus()
    {
        const bool stopped = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(limit);
        const bool ended = stopped && m_process.exitStatus() == QProcess::NormalExit;
        return ended ? m_process.exitCode() : -1;
    }

    /// The exit status after the keys were pressed in a window, repeatedly if it did not have the keyboard focus.
    int exitStatusAfter(const QString &window, const QString &keys)
    {
        QElapsedTimer timer;
        timer.start();
        while (m_process.state() == QProcess::Running && timer.elapsed() < limit) {
            press(window, keys);
            m_process.waitForFinished(500);
        }
        return exitStatus();
    }

    QByteArray logged() const
    {
        QFile file(inHome(QStringLiteral("GrisalLog.txt")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_home;
    QProcess m_process;
};

TEST_F(ProgramOnTheDesktop, QuitsByKeyAndLogsBye)
{
    start();
    EXPECT_EQ(exitStatusAfter(mainWindow(), QStringLiteral("ctrl+q")), 0);
    EXPECT_TRUE(logged().endsWith(" Warning: Bye bye...\n\n\n\n")) << logged().toStdString();
}

TEST_F(ProgramOnTheDesktop, LogsOpenGlVendorRendererAndVersion)
{
    start();
    EXPECT_EQ(exitStatusAfter(mainWindow(), QStringLiteral("ctrl+q")), 0);
    for (const char *part :
         {" Debug: INITIALIZE GL\n", " Debug: GL vendor: ", " Debug: GL renderer: ", " Debug: GL version: "}) {
        EXPECT_TRUE(logged().contains(part)) << part;
    }
}

TEST_F(ProgramOnTheDesktop, LogsNoWarningInAnOrdinaryRun)
{
    start();
    EXPECT_EQ(exitStatusAfter(mainWindow(), QStringLiteral("ctrl+q")), 0);
    const QList<QByteArray> lines = logged().split('\n');
    for (const QByteArray &line : lines) {
        const bool plain = !line.contains(" Warning: ") && !line.contains(" Critical: ");
        // A missing runtime directory is not caused by the program.
        EXPECT_TRUE(plain || line.contains("Bye bye") || line.contains("XDG_RUNTIME_DIR")) << line.toStdString();
    }
}

// The message is logged after all events that are pending at the start.
TEST_F(ProgramOnTheDesktop, IgnoresFilesOnTheCommandLine)
{
    QImage picture(8, 4, QImage::Format_RGB32);
    picture.fill(Qt::black);
    ASSERT_TRUE(picture.save(inHome(QStringLiteral("a.png"))));
    setArguments({inHome(QStringLiteral("a.png"))});
    start();
    EXPECT_EQ(exitStatusAfter(mainWindow(), QStringLiteral("ctrl+q")), 0);
    EXPECT_TRUE(logged().contains("Bye bye")) << logged().toStdString();
    EXPECT_FALSE(logged().contains("LumioImage")) << logged().toStdString();
}

// Without OpenGL, Qt crashes when it paints a window with an OpenGL widget, so the window must be closed before.
TEST_F(ProgramOnTheDesktop, WithoutOpenGlShowsABoxLogsALineAndEnds)
{
    start("QT_XCB_GL_INTEGRATION", "none");
    const QString box = windowNamed(QStringLiteral("No OpenGL"));
    EXPECT_EQ(windowsNamed(QStringLiteral("Lumio Grisal (Alpha)")), QStringList());
    EXPECT_EQ(logged().count(" Critical: "), 1) << logged().toStdString();
    EXPECT_TRUE(logged().contains(" Critical: There is no OpenGL on this display.\n"));
    EXPECT_EQ(exitStatusAfter(box, QStringLiteral("Return")), EXIT_FAILURE);
    const QByteArray console = consoleErrors();
    EXPECT_TRUE(console.startsWith("There is no OpenGL on this display.\nGrisal needs OpenGL"))
        << console.toStdString();
}

TEST_F(ProgramOnTheDesktop, WithTooOldOpenGlShowsABoxAndEnds)
{
    start("MESA_GL_VERSION_OVERRIDE", "1.4");
    EXPECT_EQ(exitStatusAfter(windowNamed(QStringLiteral("No OpenGL")), QStringLiteral("Return")), EXIT_FAILURE);
    EXPECT_TRUE(logged().contains(" Critical: The graphics driver offers only OpenGL 1.4")) << logged().toStdString();
}

TEST_F(ProgramOnTheDesktop, UsesTheLanguageOfTheDesktop)
{
    start("LANGUAGE", "de_CH:en");
    EXPECT_EQ(titleOfOpen(), "Bild öffnen");
}

TEST_F(ProgramOnTheDesktop, UsesTheFirstLanguageThatHasACatalogue)
{
    start("LANGUAGE", "nl:fr:de");
    EXPECT_EQ(titleOfOpen(), "Ouvrir une image");
}

TEST_F(ProgramOnTheDesktop, UsesEnglishIfItPrecedesOtherLanguages)
{
    start("LANGUAGE", "en_GB:de");
    EXPECT_EQ(titleOfOpen(), "Open Image");
}

TEST_F(ProgramOnTheDesktop, BoxWithoutOpenGlIsTranslatedButNotTheLog)
{
    start("MESA_GL_VERSION_OVERRIDE", "1.4", "fr");
    EXPECT_EQ(exitStatusAfter(windowNamed(QStringLiteral("Pas d’OpenGL")), QStringLiteral("Return")), EXIT_FAILURE);
    EXPECT_TRUE(logged().contains(" Critical: The graphics driver offers only OpenGL 1.4")) << logged().toStdString();
}

// With EGL there is no GLX display, as on a Wayland desktop; the OpenGL functions are found nevertheless.
TEST_F(ProgramOnTheDesktop, StartsWithoutGlxDisplay)
{
    start("QT_XCB_GL_INTEGRATION", "xcb_egl");
    EXPECT_EQ(exitStatusAfter(mainWindow(), QStringLiteral("ctrl+q")), 0);
    EXPECT_TRUE(logged().contains(" Debug: GL version: "));
}

} // namespace
