// SPDX-License-Identifier: MIT
#include "graphics/files/PictureFile.h"

#include "graphics/files/PngChunks.h"
#include "graphics/files/TiffUpright.h"

#include <QFile>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace grisal::graphics
{

namespace
{

constexpr std::uint64_t largestTrustedPicture = 90'000'000;
constexpr std::uint64_t mostPixelsPerByte = 200;

constexpr std::uint32_t longestText = 1 << 20;
constexpr int mostCompressedTexts = 16;

/// Whether a TIFF file of that size may have its directory there: behind its first bytes.
bool isWithin(std::uint32_t directory, std::uint64_t size)
{
    return directory >= signatureLength && directory < size;
}

} // namespace

PictureFile::PictureFile(const QString &path)
{
    open(path);
    if (m_problem.isEmpty()) {
        look(path);
    }
    if (m_problem.isEmpty() && m_format == PictureFormat::Png && hasInvalidTexts()) {
        m_problem = QStringLiteral("%1 holds texts of absurd length").arg(path);
    }
    if (m_problem.isEmpty() && m_format == PictureFormat::Tiff) {
        standUpright();
    }
}

// What is there is looked at before it is opened, since opening a device may do something; and once more afterwards,
// since it may have become something else.
void PictureFile::open(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status {
    };
    const bool isThere = stat(name.constData(), &status) == 0;
    if (isThere && S_ISREG(status.st_mode)) {
        m_file = OpenFile(::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    }
    if (!m_file.isOpen() || fstat(m_file.descriptor(), &status) != 0 || !S_ISREG(status.st_mode)) {
        m_problem = QStringLiteral("Cannot open %1").arg(path);
        return;
    }
    m_size = static_cast<std::uint64_t>(status.st_size);
}

void PictureFile::look(const QString &path)
{
    const std::optional<PictureFormat> format = formatOfContents(m_file.bytesAt(0, signatureLength));
    if (!format) {
        m_problem = QStringLiteral("No JPEG, PNG or TIFF picture in %1").arg(path);
        return;
    }
    m_format = *format;
}

void PictureFile::standUpright()
{
    try {
        m_upright = uprightTiff(m_file);
    } catch (const std::exception &exception) {
        m_problem = QString::fromLocal8Bit(exception.what());
    }
}

// Whatever follows the closing chunk, or bytes that are no chunk, is not read by GraphicsMagick.
bool PictureFile::hasInvalidTexts() const
{
    int compressedTexts = 0;
    return !visitPngChunks(m_file, [&](const PngChunk &chunk) {
        const bool isCompressed = chunk.kind == "zTXt" || chunk.kind == "iTXt" || chunk.kind == "iCCP";
        const bool isText = isCompressed || chunk.kind == "tEXt";
        compressedTexts += isCompressed ? 1 : 0;
        return !(isText && chunk.length > longestText) && compressedTexts <= mostCompressedTexts;
    });
}

bool PictureFile::canHold(std::uint64_t pixels) const
{
    return pixels <= largestTrustedPicture || pixels / mostPixelsPerByte <= m_size;
}

bool endsAsItShould(const OpenFile &file, PictureFormat format)
{
    struct stat status {
    };
    if (fstat(file.descriptor(), &status) != 0 || status.st_size < signatureLength) {
        return false;
    }
    const auto size = static_cast<std::uint64_t>(status.st_size);
    switch (format) {
    case PictureFormat::Jpeg:
        return file.bytesAt(size - 2, 2) == "\xff\xd9";
    case PictureFormat::Png:
        return file.bytesAt(size - 8, 4) == "IEND";
    case PictureFormat::Tiff:
        return isWithin(qFromLittleEndian<std::uint32_t>(file.bytesAt(4, 4).constData()), size);
    }
    return false;
}

} // namespace grisal::graphics
