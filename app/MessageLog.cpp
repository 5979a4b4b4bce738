// SPDX-License-Identifier: MIT
#include "app/MessageLog.h"

#include "graphics/ControlCharacters.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace message_log
{

namespace
{

QLatin1String levelWord(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QLatin1String("Debug: ");
    case QtWarningMsg:
        return QLatin1String("Warning: ");
    case QtCriticalMsg:
        return QLatin1String("Critical: ");
    case QtFatalMsg:
        return QLatin1String("Fatal: ");
    default:
        return QLatin1String("");
    }
}

/// A message without control characters. Line feeds stay where the program writes them itself: in debug messages, some
/// of which have several lines, and three at the end of the last message.
QString printable(QtMsgType type, const QString &text)
{
    using grisal::graphics::escapeControlCharacters;
    const QString end = QStringLiteral("\n\n\n");
    if (type == QtDebugMsg) {
        QStringList lines = text.split(QLatin1Char('\n'));
        std::transform(lines.begin(), lines.end(), lines.begin(), escapeControlCharacters);
        return lines.join(QLatin1Char('\n'));
    }
    return text.endsWith(end) ? escapeControlCharacters(text.chopped(end.size())) + end : escapeControlCharacters(text);
}

/// Opens the log to append to it. Only its owner may read it, because it contains the names of files. In place of the
/// log there may be something else, such as a pipe, for whose reader the program would wait.
bool openLog(QFile &file)
{
    constexpr mode_t ownerOnly = 0600;
    const int descriptor = open(QFile::encodeName(path()).constData(),
                                O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, ownerOnly);
    struct stat status {
    };
    if (descriptor < 0) {
        return false;
    }
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(descriptor);
        return false;
    }
    return file.open(descriptor, QIODevice::WriteOnly | QIODevice::Append, QFileDevice::AutoCloseHandle);
}

} // namespace

QString path()
{
    return QDir::homePath() + QStringLiteral("/GrisalLog.txt");
}

QString line(QtMsgType type, const QTime &time, const QString &text)
{
    return time.toString(QStringLiteral("hh:mm:ss.zzz")) + QLatin1Char(' ') + levelWord(type) + printable(type, text);
}

void write(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    QFile file;
    if (openLog(file)) {
        QTextStream stream(&file);
        stream << line(type, QTime::currentTime(), text) << Qt::endl;
        file.close();
    }
    if (type == QtFatalMsg) {
        std::abort();
    }
}

grisal::graphics::Message problem()
{
    QFile file;
    if (openLog(file)) {
        return {};
    }
    return grisal::graphics::Message(QT_TRANSLATE_NOOP("Message", "The log %1 cannot be written."), path());
}

void install()
{
    qInstallMessageHandler(write);
    // SIGXFSZ would end the program when the log reaches the file size limit.
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace message_log
