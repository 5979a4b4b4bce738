// SPDX-License-Identifier: MIT
#include "app/Session.h"

#include "app/PictureMemory.h"
#include "graphics/files/ImageConversion.h"
#include "graphics/files/ImageFile.h"
#include "graphics/files/ImageFormat.h"
#include "graphics/files/LumioImage.h"
#include "graphics/look/LookText.h"

#include <QFile>

#include <sys/stat.h>

#include <cerrno>

namespace grisal
{

namespace
{

using graphics::Image;
using graphics::LumioImage;

constexpr int saveQuality = 90;

bool isKnownToBeMissing(const QString &path)
{
    struct stat status {
    };
    return lstat(QFile::encodeName(path).constData(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

// A file that was recognised by its contents may have no extension that it could be saved with.
QString proposedNameFor(const graphics::ImageFile &file)
{
    const auto [base, extension] = graphics::partsOfName(file.path());
    return base + graphics::convertedSuffix + u'.' +
           (extension.isEmpty() ? graphics::extensionOf(file.format()) : extension);
}

Session::PicturePointer pictureOf(LumioImage &file, const QString &proposedName)
{
    return std::make_shared<Picture>(Picture{imageOf(file), file.metadata(), file.info(), proposedName});
}

void logProblems(const LumioImage &file)
{
    if (!file.problem().isEmpty()) {
        qWarning("%s", qPrintable(file.problem().english()));
    }
    if (!file.warning().isEmpty()) {
        qWarning("%s", qPrintable(file.warning().english()));
    }
}

} // namespace

Session::PicturePointer Session::read(const QString &path)
{
    m_warning = {};
    m_problem = {};
    m_shortage = {};
    try {
        graphics::ImageFile opened(path);
        if (opened.problem().isEmpty() && !fitsIntoMemory(opened)) {
            return nullptr;
        }
        LumioImage file;
        const bool good = file.read(opened);
        logProblems(file);
        m_problem = file.problem();
        if (!good && !isKnownToBeMissing(path)) {
            return nullptr;
        }
        const bool again = !good && m_picture;
        qDebug("%s", again ? m_picture->info.c_str() : file.info().c_str());
        m_warning = file.warning();
        return good ? pictureOf(file, proposedNameFor(opened)) : m_picture;
    } catch (const std::exception &problem) {
        // Usually std::bad_alloc: not enough memory for the image.
        qWarning("%s", problem.what());
        m_problem = graphics::Message::quoting(QString::fromLocal8Bit(problem.what()));
        return nullptr;
    }
}

bool Session::fitsIntoMemory(const graphics::ImageFile &file)
{
    const MemoryShortage memory{memoryForPicture(file), graphics::freeMemory(m_memory)};
    if (memory.needed <= memory.free) {
        return true;
    }
    m_shortage = memory;
    qWarning("%s needs %s of memory to be opened and saved, %s are free", qPrintable(file.path()),
             qPrintable(graphics::memoryText(memory.needed)), qPrintable(graphics::memoryText(memory.free)));
    return false;
}

bool Session::failToWrite(const QString &path, const graphics::Message &problem)
{
    m_problem = problem;
    qWarning("Cannot save %s: %s", qPrintable(path), qPrintable(problem.english()));
    return false;
}

bool Session::startsLikeImage(const QString &path)
{
    return graphics::startsLikeImage(path);
}

bool Session::checkName(const QString &path)
{
    m_problem = {};
    return graphics::formatOfName(path) || failToWrite(path, graphics::unknownExtension());
}

bool Session::write(Image image, const QString &path, const graphics::Look &look)
{
    m_warning = {};
    m_problem = {};
    LumioImage file = fileOf(image);
    image = {};
    graphics::Metadata metadata = m_picture ? m_picture->metadata : graphics::Metadata();
    metadata.setLook(graphics::lookText(look));
    file.setMetadata(metadata);
    if (!file.problem().isEmpty() || !file.save(path, saveQuality)) {
        return failToWrite(path, file.problem());
    }
    m_warning = file.warning();
    logProblems(file);
    qDebug("Saved %s", qPrintable(path));
    return true;
}

} // namespace grisal
