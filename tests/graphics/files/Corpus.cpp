// SPDX-License-Identifier: MIT
#include "tests/graphics/files/Corpus.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <stdexcept>

namespace grisal::test
{

namespace
{

QStringList everythingIn(const QString &folder)
{
    QStringList paths;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        paths << entries.next();
    }
    paths.sort();
    return paths;
}

} // namespace

QString corpusFolder()
{
    return qEnvironmentVariable("GRISAL_CORPUS");
}

QStringList realPictures()
{
    QFile manifest(corpusFolder() + QStringLiteral("/MANIFEST.tsv"));
    if (!manifest.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("the list of the pictures is missing");
    }
    const QStringList columns = QString::fromUtf8(manifest.readLine()).trimmed().split(QLatin1Char('\t'));
    const auto pathColumn = columns.indexOf(QStringLiteral("path"));
    const auto resultColumn = columns.indexOf(QStringLiteral("library_read"));
    QStringList paths;
    while (!manifest.atEnd()) {
        const QStringList row = QString::fromUtf8(manifest.readLine()).split(QLatin1Char('\t'));
        const QString &path = row.value(pathColumn);
        const QString &result = row.value(resultColumn);
        if (path.startsWith(QStringLiteral("real/")) && result != QStringLiteral("errors")) {
            paths << corpusFolder() + QLatin1Char('/') + path;
        }
    }
    return paths;
}

QStringList hostileFiles(const QString &folder)
{
    const int status =
        QProcess::execute(QStringLiteral("bash"), {corpusFolder() + QStringLiteral("/make/make_hostile.sh"), folder});
    if (status != 0) {
        throw std::runtime_error("the hostile files could not be made");
    }
    return everythingIn(corpusFolder() + QStringLiteral("/hostile")) + everythingIn(folder);
}

} // namespace grisal::test
