// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>
#include <QTime>

/// The program's log: every message of the program and of the toolkit, a line each, in GrisalLog.txt in the user's
/// home. The file is appended to and never shortened.
namespace message_log
{

/// Path of the log.
QString path();

/// A message as a line, without its end: "hh:mm:ss.zzz", a space, the level word ("Debug: ", "Warning: ",
/// "Critical: ", "Fatal: ", nothing for any other type) and the text.
QString line(QtMsgType type, const QTime &time, const QString &text);

/// Appends a message to the log. The file is opened and closed anew each time, so that a crash loses no line; where it
/// cannot be opened the message is dropped. A fatal message ends the process afterwards, written or not.
/// To be called from one thread only.
void write(QtMsgType type, const QMessageLogContext &context, const QString &text);

/// From now on all messages go into the log, and a file that must not grow any more does not end the process.
void install();

} // namespace message_log
