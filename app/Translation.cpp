// SPDX-License-Identifier: MIT
#include "app/Translation.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

Translation::Translation(const QLocale &locale)
{
    const QString catalogue = fileInLanguageOf(locale, QStringLiteral(":/Translations/grisal_%1.qm"));
    if (catalogue.isEmpty() || !m_program.load(catalogue)) {
        return;
    }
    QCoreApplication::installTranslator(&m_program);
    if (m_toolkit.load(QStringLiteral("qtbase_") + m_program.language(),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_toolkit);
    }
}

QString fileInLanguageOf(const QLocale &locale, const QString &pattern)
{
    const QStringList names = locale.uiLanguages();
    for (const QString &name : names) {
        const QString language = name.section(QLatin1Char('-'), 0, 0);
        if (language == QLatin1String("en")) {
            break;
        }
        QString path = pattern.arg(language);
        if (QFile::exists(path)) {
            return path;
        }
    }
    return {};
}
