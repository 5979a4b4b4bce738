// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTranslator>

class QLocale;

/// Installs the translations for the locale during its lifetime: that of the program and, if its catalogue is
/// installed, that of Qt, so that the text and the buttons of a message box are in the same language. Without a
/// catalogue of the program everything is English. To be created after the application object; existing windows keep
/// their language.
class Translation
{
public:
    explicit Translation(const QLocale &locale);

private:
    // The destructor of a translator uninstalls it.
    QTranslator m_program;
    QTranslator m_toolkit;
};

/// The first existing path in which %1 of the pattern is replaced by a language of the locale: "de", "fr". The search
/// ends at English, which has no file of its own. Empty if no file is found.
QString fileInLanguageOf(const QLocale &locale, const QString &pattern);
