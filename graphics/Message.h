// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace grisal::graphics
{

/// A message for the user, in the language of the program, and for the log, in English.
class Message
{
public:
    /// An empty message.
    Message() = default;
    /// A message that the program translates. `text` is marked by QT_TRANSLATE_NOOP("Message", ...) and is not copied;
    /// `detail`, for example a path or a number, replaces %1 in it.
    explicit Message(const char *text, QString detail = {});
    /// A message that consists of a text from elsewhere, for example from GraphicsMagick. It is not translated.
    static Message quoting(const QString &words);

    bool isEmpty() const;
    QString english() const;
    QString translated() const;

    /// Replaces a substring of the detail or of the quoted text, the parts that are not translated.
    void replaceInDetail(const QString &before, const QString &after);

private:
    QString complete(QString text) const;

    const char *m_text = nullptr;
    QString m_detail;
};

} // namespace grisal::graphics
