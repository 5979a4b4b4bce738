// SPDX-License-Identifier: MIT
#include "batch/Converter.h"

#include "batch/Paths.h"
#include "graphics/files/ImageFile.h"
#include "graphics/files/ImageLibrary.h"
#include "graphics/files/ImageMemory.h"
#include "graphics/files/LookInFile.h"
#include "graphics/files/LumioImage.h"
#include "graphics/look/LookText.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <new>
#include <system_error>

namespace grisal::batch
{

namespace
{

using graphics::Image;
using graphics::ImageFile;
using graphics::LumioImage;

constexpr double millisecondsPerSecond = 1000;

Outcome failed(const QString &message)
{
    return {Result::Failed, message};
}

Outcome skipped(const QString &message)
{
    return {Result::Skipped, message};
}

QFileInfo infoOf(const QString &path)
{
    return QFileInfo(absolutePath(path, QDir::currentPath()));
}

/// Why a file cannot be read; empty if it can, or for another reason.
QString accessProblem(const QString &path)
{
    const QFileInfo file = infoOf(path);
    if (!file.exists()) {
        return QStringLiteral("there is no such file");
    }
    if (file.isDir()) {
        return QStringLiteral("it is a folder");
    }
    if (!file.isFile()) {
        return QStringLiteral("it is not a regular file");
    }
    return file.isReadable() ? QString() : QStringLiteral("it may not be read");
}

QStringList englishOf(const graphics::Message &message)
{
    return message.isEmpty() ? QStringList() : QStringList(message.english());
}

} // namespace

Converter::Converter(const graphics::Look &look, const Options &options)
    : m_look(look), m_lookText(graphics::lookText(look)), m_renderer(look.parameters(), look.enabled),
      m_quality(options.quality), m_ifExists(options.ifExists)
{
}

Outcome Converter::convert(const Job &job) const
{
    QElapsedTimer timer;
    timer.start();
    Outcome outcome;
    try {
        outcome = infoOf(job.output).exists() ? convertExisting(job) : convertPicture(job);
    } catch (const std::bad_alloc &) {
        outcome = failed(QStringLiteral("not enough memory"));
    } catch (const std::exception &problem) {
        outcome = failed(QString::fromLocal8Bit(problem.what()));
    }
    outcome.seconds = static_cast<double>(timer.elapsed()) / millisecondsPerSecond;
    return outcome;
}

Outcome Converter::convertExisting(const Job &job) const
{
    switch (m_ifExists) {
    case IfExists::Error:
        return failed(QStringLiteral("%1 exists; choose with --if-exists to skip or replace it").arg(job.output));
    case IfExists::Skip:
        return skipped(QStringLiteral("%1 exists").arg(job.output));
    case IfExists::Update:
        return isUpToDate(job) ? skipped(QStringLiteral("%1 is up to date").arg(job.output)) : convertPicture(job);
    case IfExists::Overwrite:
        break;
    }
    return convertPicture(job);
}

bool Converter::isUpToDate(const Job &job) const
{
    if (infoOf(job.output).lastModified() < infoOf(job.source).lastModified()) {
        return false;
    }
    QString problem;
    return graphics::parseLook(graphics::readLook(job.output).text, problem) == m_look;
}

Outcome Converter::convertPicture(const Job &job) const
{
    graphics::initializeImageLibrary(nullptr);
    graphics::useOneThread();
    LumioImage file;
    if (!file.read(job.source)) {
        const QString problem = accessProblem(job.source);
        return failed(problem.isEmpty() ? file.problem().english() : problem);
    }
    Outcome outcome{Result::Done, {}, file.width(), file.height(), file.is16Bit() ? 16 : 8};
    QStringList warnings = englishOf(file.warning());
    graphics::Metadata metadata = file.metadata();
    metadata.setLook(m_lookText);
    file.setMetadata(metadata);
    const int height = file.height();
    if (!file.transformRows([&](Image &rows, int first) { m_renderer.renderRows(rows, first, height); })) {
        return failed(file.problem().english());
    }
    const QString folder = infoOf(job.output).path();
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    if (error) {
        return failed(QStringLiteral("the folder %1 cannot be made: %2")
                          .arg(folder, QString::fromLocal8Bit(error.message().c_str())));
    }
    if (!file.save(job.output, m_quality)) {
        return failed(QStringLiteral("%1 cannot be saved: %2").arg(job.output, file.problem().english()));
    }
    outcome.message = (warnings + englishOf(file.warning())).join(QStringLiteral("; "));
    return outcome;
}

std::uint64_t memoryToConvert(const QString &source)
{
    const ImageFile file(source);
    if (!file.problem().isEmpty()) {
        return 0;
    }
    return std::max(file.memoryToRead(), graphics::memoryToWrite(file.header()));
}

} // namespace grisal::batch
