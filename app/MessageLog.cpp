// SPDX-License-Identifier: MIT
#include "app/MessageLog.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

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

} // namespace

QString path()
{
    return QDir::homePath() + QStringLiteral("/GrisalLog.txt");
}

QString line(QtMsgType type, const QTime &time, const QString &text)
{
    return time.toString(QStringLiteral("hh:mm:ss.zzz")) + QLatin1Char(' ') + levelWord(type) + text;
}

void write(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    QFile file(path());
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        QTextStream stream(&file);
        stream << line(type, QTime::currentTime(), text) << Qt::endl;
        file.close();
    }
    if (type == QtFatalMsg) {
        std::abort();
    }
}

void install()
{
    qInstallMessageHandler(write);
    // SIGXFSZ would end the program when the log reaches the file size limit.
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace message_log
