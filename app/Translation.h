// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTranslator>

class QLocale;

/// What the user reads, in the language of the locale, while this lives: the program's texts and, where its catalogue
/// is installed, the toolkit's, so that a box does not ask in one language and answer in another. English, with nothing
/// to install, where the program has no catalogue. Made after the application object; windows that are there already
/// keep their language.
class Translation
{
public:
    explicit Translation(const QLocale &locale);

private:
    // A translator that goes is no longer asked.
    QTranslator m_program;
    QTranslator m_toolkit;
};

/// The path of the first file that there is when the languages of the locale stand for the %1 of the pattern, one after
/// the other: "de", "fr". Empty where there is none before English, which has no file of its own.
QString fileInLanguageOf(const QLocale &locale, const QString &pattern);
