// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace grisal::graphics
{

/// A sentence for the user and for the log: the user reads it in the language of the program, the log stays English.
class Message
{
public:
    /// Nothing to tell.
    Message() = default;
    /// The text, marked by QT_TRANSLATE_NOOP("Message", ...), and what stands in it for %1: a path, a number. It is
    /// not copied.
    explicit Message(const char *text, QString detail = {});
    /// What somebody else said, the image library, say: the same in every language.
    static Message quoting(const QString &words);

    bool isEmpty() const;
    QString english() const;
    QString translated() const;

    /// Puts one word for another in what is not ours: the detail, or the words that are quoted.
    void replaceInDetail(const QString &before, const QString &after);

private:
    QString complete(QString text) const;

    const char *m_text = nullptr;
    QString m_detail;
};

} // namespace grisal::graphics
