// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

#include <QString>
#include <QtGlobal>
#include <QTime>

/// The program's log: every message of the program and of Qt, one per line, in GrisalLog.txt in the user's home
/// directory. The file is appended to and never shortened. Only its owner may read it. Anything else in its place, such
/// as a pipe or a device, is left alone, and all messages are dropped.
namespace message_log
{

/// Path of the log file.
QString path();

/// Formats a message as a line without line end: "hh:mm:ss.zzz", a space, the level word ("Debug: ", "Warning: ",
/// "Critical: ", "Fatal: ", nothing for any other type) and the text. Control characters in the text are escaped,
/// except for line feeds in debug messages and "\n\n\n" at the end.
QString line(QtMsgType type, const QTime &time, const QString &text);

/// Appends a message to the log. The file is opened and closed for each message, so that a crash loses no line. If it
/// cannot be opened, the message is dropped. A fatal message ends the process, whether it could be written or not. To
/// be called from one thread only.
void write(QtMsgType type, const QMessageLogContext &context, const QString &text);

/// Why messages are dropped; empty if the log can be written.
grisal::graphics::Message problem();

/// Redirects all messages to the log. A log that has reached the file size limit does not end the process.
void install();

} // namespace message_log
