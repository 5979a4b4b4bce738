// SPDX-License-Identifier: MIT
#include "graphics/files/ImageFile.h"

#include "graphics/files/ImageMemory.h"
#include "graphics/files/PngTexts.h"
#include "graphics/files/TiffDirectory.h"
#include "graphics/files/TiffOrientation.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace grisal::graphics
{

namespace
{

/// Sufficient for images that are not checked, and for the tiles of a TIFF file, which may exceed its image.
constexpr std::uint64_t maxUncheckedPixels = maxUncheckedMemory / 20;

/// Whether the offset of the directory of a TIFF file lies behind the header and within the file.
bool hasCompleteTiffEnd(const OpenFile &file, std::uint64_t size)
{
    const std::optional<TiffFileHeader> header = decodeTiffFileHeader(file.bytesAt(0, tiffHeaderSize));
    return header && header->directoryOffset >= tiffHeaderSize && header->directoryOffset < size;
}

// The type is checked before the file is opened, since opening a device may have side effects, and once more
// afterwards, since the file may have been replaced.
OpenFile openRegularFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status {
    };
    if (stat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return OpenFile();
    }
    OpenFile file(open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    return file.isOpen() && fstat(file.descriptor(), &status) == 0 && S_ISREG(status.st_mode) ? std::move(file)
                                                                                              : OpenFile();
}

std::optional<ImageFormat> formatOf(const OpenFile &file)
{
    return formatOfContents(file.bytesAt(0, signatureLength));
}

} // namespace

bool startsLikeImage(const QString &path)
{
    const OpenFile file = openRegularFile(path);
    return file.isOpen() && formatOf(file);
}

ImageFile::ImageFile(const QString &path) : m_path(path)
{
    open();
    if (m_problem.isEmpty()) {
        detectFormat();
    }
    if (m_problem.isEmpty() && m_format == ImageFormat::Png && !arePngTextsWithinLimits(m_file)) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "%1 contains texts that are too long"), m_path);
    }
    if (m_problem.isEmpty()) {
        checkHeader();
    }
}

void ImageFile::open()
{
    m_file = openRegularFile(m_path);
    if (!m_file.isOpen()) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "Cannot open %1"), m_path);
    }
}

void ImageFile::detectFormat()
{
    const std::optional<ImageFormat> format = formatOf(m_file);
    if (!format) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "No JPEG, PNG or TIFF picture in %1"), m_path);
        return;
    }
    m_format = *format;
}

// A file without a size is left to GraphicsMagick, which usually rejects it.
void ImageFile::checkHeader()
{
    m_header = readImageHeader(m_file, m_format).value_or(ImageHeader());
    if (!isPlausible(m_header, m_file.storedSize())) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "%1 is too small a file for its number of pixels"), m_path);
        return;
    }
    m_copySize = m_format == ImageFormat::Tiff ? sizeOfNormalisedCopy(m_file) : 0;
    if (!isPlausibleCopy(m_header, m_copySize)) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "%1 is too large a file for its number of pixels"), m_path);
    }
}

std::uint64_t ImageFile::maxPixels() const
{
    return std::max(m_header.pixels(), maxUncheckedPixels);
}

std::uint64_t ImageFile::memoryToRead() const
{
    return (m_header.pixels() > 0 ? graphics::memoryToRead(m_header) : maxUncheckedMemory) + m_copySize;
}

void ImageFile::normalise()
{
    if (m_copySize > 0) {
        m_normalised = copyWithNormalOrientation(m_file);
    }
}

bool hasCompleteEnd(const OpenFile &file, ImageFormat format)
{
    struct stat status {
    };
    if (fstat(file.descriptor(), &status) != 0 || status.st_size < signatureLength) {
        return false;
    }
    const auto size = static_cast<std::uint64_t>(status.st_size);
    switch (format) {
    case ImageFormat::Jpeg:
        return file.bytesAt(size - 2, 2) == "\xff\xd9";
    case ImageFormat::Png:
        return file.bytesAt(size - 8, 4) == "IEND";
    case ImageFormat::Tiff:
        return hasCompleteTiffEnd(file, size);
    }
    return false;
}

} // namespace grisal::graphics
