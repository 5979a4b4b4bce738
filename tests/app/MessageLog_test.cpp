// SPDX-License-Identifier: MIT
#include "app/MessageLog.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class MessageLog : public testing::Test
{
protected:
    MessageLog() : m_homeBefore(qgetenv("HOME")) { qputenv("HOME", home.path().toLocal8Bit()); }

    ~MessageLog() override { qputenv("HOME", m_homeBefore); }

    QByteArray logged() const
    {
        QFile file(home.filePath(QStringLiteral("GrisalLog.txt")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home;

private:
    QByteArray m_homeBefore;
};

/// Redirects all messages of the program to the log during its lifetime.
class InstalledLog
{
public:
    InstalledLog() : m_before(qInstallMessageHandler(nullptr)) { message_log::install(); }
    InstalledLog(const InstalledLog &) = delete;
    InstalledLog &operator=(const InstalledLog &) = delete;
    ~InstalledLog() { qInstallMessageHandler(m_before); }

private:
    QtMessageHandler m_before;
};

void write(QtMsgType type, const char *text)
{
    message_log::write(type, QMessageLogContext(), QString::fromUtf8(text));
}

TEST(MessageLogLine, HasTimeLevelAndText)
{
    const QTime time(14, 3, 7, 125);
    const QString text = QStringLiteral("Buffer is invalid!");
    EXPECT_EQ(message_log::line(QtDebugMsg, time, text), QStringLiteral("14:03:07.125 Debug: Buffer is invalid!"));
    EXPECT_EQ(message_log::line(QtWarningMsg, time, text), QStringLiteral("14:03:07.125 Warning: Buffer is invalid!"));
    EXPECT_EQ(message_log::line(QtCriticalMsg, time, text),
              QStringLiteral("14:03:07.125 Critical: Buffer is invalid!"));
    EXPECT_EQ(message_log::line(QtFatalMsg, time, text), QStringLiteral("14:03:07.125 Fatal: Buffer is invalid!"));
}

TEST(MessageLogLine, HasNoLevelForOtherTypes)
{
    const QTime time(0, 0, 0, 5);
    EXPECT_EQ(message_log::line(QtInfoMsg, time, QStringLiteral("so")), QStringLiteral("00:00:00.005 so"));
    EXPECT_EQ(message_log::line(static_cast<QtMsgType>(17), time, QStringLiteral("so")),
              QStringLiteral("00:00:00.005 so"));
}

TEST(MessageLogLine, HasEscapesForControlCharactersInWarnings)
{
    const QTime time(0, 0, 0, 5);
    const QString text = QStringLiteral("Cannot open a\n12:00:00.000 Critical: \x1b[31mb\r.png\n");
    EXPECT_EQ(message_log::line(QtWarningMsg, time, text).toStdString(),
              "00:00:00.005 Warning: Cannot open a\\n12:00:00.000 Critical: \\x1b[31mb\\r.png\\n");
}

TEST(MessageLogLine, KeepsTheLinesOfDebugMessagesAndOfTheLastMessage)
{
    const QTime time(0, 0, 0, 5);
    EXPECT_EQ(message_log::line(QtDebugMsg, time, QStringLiteral("\n a\tb\n\n")).toStdString(),
              "00:00:00.005 Debug: \n a\\tb\n\n");
    EXPECT_EQ(message_log::line(QtWarningMsg, time, QStringLiteral("Bye bye...\n\n\n")).toStdString(),
              "00:00:00.005 Warning: Bye bye...\n\n\n");
}

TEST_F(MessageLog, FileIsInTheHomeDirectory)
{
    EXPECT_EQ(message_log::path(), home.path() + QStringLiteral("/GrisalLog.txt"));
}

TEST_F(MessageLog, MessageIsOneLineEndingWithALineFeed)
{
    write(QtWarningMsg, "Buffer is invalid!");
    const QRegularExpression pattern(
        QStringLiteral("\\A\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d Warning: Buffer is invalid!\n\\z"));
    EXPECT_TRUE(pattern.match(QString::fromUtf8(logged())).hasMatch()) << logged().toStdString();
}

TEST_F(MessageLog, KeepsEarlierLines)
{
    QFile file(home.filePath(QStringLiteral("GrisalLog.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("of an earlier run\n");
    file.close();
    write(QtDebugMsg, "first");
    write(QtDebugMsg, "second");
    const QList<QByteArray> lines = logged().split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], "of an earlier run");
    EXPECT_TRUE(lines[1].endsWith(" Debug: first"));
    EXPECT_TRUE(lines[2].endsWith(" Debug: second"));
    EXPECT_EQ(lines[3], "");
}

TEST_F(MessageLog, TextIsUtf8)
{
    write(QtWarningMsg, "Größe → 3 µm");
    EXPECT_TRUE(logged().endsWith("Warning: Größe → 3 µm\n")) << logged().toStdString();
}

TEST_F(MessageLog, ReceivesMessagesOfQtOnceInstalled)
{
    const InstalledLog log;
    qDebug("a");
    qInfo("b");
    qWarning("c");
    qCritical("d");
    QString text = QString::fromUtf8(logged());
    text.remove(QRegularExpression(QStringLiteral("^[\\d:.]{12}"), QRegularExpression::MultilineOption));
    EXPECT_EQ(text.toStdString(), " Debug: a\n b\n Warning: c\n Critical: d\n");
}

TEST_F(MessageLog, DropsMessagesWithoutAHomeDirectory)
{
    qputenv("HOME", home.filePath(QStringLiteral("missing")).toLocal8Bit());
    write(QtCriticalMsg, "dropped");
    EXPECT_FALSE(QFile::exists(message_log::path()));
}

TEST_F(MessageLog, IsCreatedReadableByItsOwnerOnly)
{
    const mode_t before = umask(0);
    write(QtDebugMsg, "a.png");
    umask(before);
    struct stat status {
    };
    ASSERT_EQ(stat(QFile::encodeName(message_log::path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(MessageLog, NothingIsWrittenToAPipe)
{
    const QByteArray path = QFile::encodeName(message_log::path());
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    write(QtWarningMsg, "dropped");
    const int reader = open(path.constData(), O_RDONLY | O_NONBLOCK);
    write(QtWarningMsg, "dropped, too");
    char text = 0;
    EXPECT_EQ(read(reader, &text, 1), 0);
    close(reader);
    EXPECT_TRUE(message_log::problem().english().contains(message_log::path()));
}

TEST_F(MessageLog, HasNoProblemIfItIsARegularFile)
{
    EXPECT_TRUE(message_log::problem().isEmpty());
    write(QtDebugMsg, "a");
    EXPECT_TRUE(message_log::problem().isEmpty());
}

using MessageLogDeathTest = MessageLog;

TEST_F(MessageLogDeathTest, FatalMessageIsWrittenAndEndsTheProcess)
{
    EXPECT_EXIT(write(QtFatalMsg, "the end"), testing::KilledBySignal(SIGABRT), "");
    EXPECT_TRUE(logged().endsWith(" Fatal: the end\n")) << logged().toStdString();
}

TEST_F(MessageLogDeathTest, FatalMessageWithoutAHomeDirectoryEndsTheProcess)
{
    qputenv("HOME", home.filePath(QStringLiteral("missing")).toLocal8Bit());
    EXPECT_EXIT(write(QtFatalMsg, "the end"), testing::KilledBySignal(SIGABRT), "");
}

} // namespace
