// SPDX-License-Identifier: MIT
#include "batch/RequestedLook.h"

#include "batch/Paths.h"
#include "graphics/files/ImageFile.h"
#include "graphics/files/LookInFile.h"
#include "graphics/look/FilmPresets.h"
#include "graphics/look/LookText.h"

#include <QFile>

namespace grisal::batch
{

namespace
{

using graphics::Look;

constexpr qint64 longestText = 1 << 20;

std::optional<Look> parsed(const QByteArray &text, const QString &path, QString &problem)
{
    std::optional<Look> look = graphics::parseLook(text, problem);
    if (!look) {
        problem = QStringLiteral("%1 has no valid look: %2").arg(path, problem);
    }
    return look;
}

std::optional<Look> lookOfPicture(const QString &path, QString &problem)
{
    const graphics::LookInFile found = graphics::readLook(path);
    if (!found.problem.isEmpty()) {
        problem = found.problem.english();
        return std::nullopt;
    }
    if (found.text.isEmpty()) {
        problem = QStringLiteral("%1 has no look; pictures that this or a later version of Grisal has saved have one")
                      .arg(path);
        return std::nullopt;
    }
    return parsed(found.text, path, problem);
}

std::optional<Look> lookOfFilm(const QString &name, QString &problem)
{
    for (const graphics::FilmPreset &film : graphics::filmPresets) {
        if (name.compare(QLatin1String(film.name), Qt::CaseInsensitive) == 0) {
            Look look;
            look.mixer.weights = film.weights();
            return look;
        }
    }
    problem = QStringLiteral("there is no film \"%1\"; --list-films prints the names").arg(name);
    return std::nullopt;
}

} // namespace

std::optional<Look> lookOfFile(const QString &path, QString &problem)
{
    if (graphics::startsLikeImage(path)) {
        return lookOfPicture(path, problem);
    }
    QFile file(pathForQt(path));
    if (!file.open(QIODevice::ReadOnly)) {
        problem = QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    const QByteArray text = file.read(longestText + 1);
    if (text.size() > longestText) {
        problem = QStringLiteral("%1 is larger than 1 MiB").arg(path);
        return std::nullopt;
    }
    return parsed(text, path, problem);
}

std::optional<Look> requestedLook(const Options &options, QString &problem)
{
    return options.film.isEmpty() ? lookOfFile(options.look, problem) : lookOfFilm(options.film, problem);
}

QString filmNames()
{
    QString names;
    for (const graphics::FilmPreset &film : graphics::filmPresets) {
        names += QLatin1String(film.name) + '\n';
    }
    return names;
}

} // namespace grisal::batch
