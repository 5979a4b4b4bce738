// SPDX-License-Identifier: MIT
#include "graphics/files/PictureFile.h"

#include "graphics/files/TiffUpright.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace grisal::graphics
{

namespace
{

constexpr std::uint64_t largestTrustedPicture = 90'000'000;
constexpr std::uint64_t mostPixelsPerByte = 200;

// A PNG file is a row of chunks: the length of the contents, four letters, the contents, a checksum.
constexpr int chunkHeadLength = 8;
constexpr int chunkChecksumLength = 4;
constexpr int mostChunks = 500'000;
constexpr std::uint32_t longestText = 1 << 20;
constexpr int mostCompressedTexts = 16;

/// Whether a TIFF file of that size may have its directory there: behind its first bytes.
bool isWithin(std::uint32_t directory, std::uint64_t size)
{
    return directory >= signatureLength && directory < size;
}

bool isOneOf(QByteArrayView kind, std::initializer_list<const char *> kinds)
{
    return std::any_of(kinds.begin(), kinds.end(), [kind](const char *other) { return kind == other; });
}

bool isChunkKind(QByteArrayView kind)
{
    return std::all_of(kind.begin(), kind.end(),
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); });
}

} // namespace

PictureFile::PictureFile(const QString &path)
{
    open(path);
    if (m_problem.isEmpty()) {
        look(path);
    }
    if (m_problem.isEmpty() && m_format == PictureFormat::Png && hasAbsurdTexts()) {
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

// What comes behind something that is no chunk, or behind the end, is nothing the library would look at.
bool PictureFile::hasAbsurdTexts() const
{
    int compressedTexts = 0;
    std::uint64_t place = signatureLength;
    for (int chunk = 0; chunk < mostChunks; ++chunk) {
        const QByteArray head = m_file.bytesAt(place, chunkHeadLength);
        const QByteArrayView kind = QByteArrayView(head).sliced(std::min<qsizetype>(4, head.size()));
        if (head.size() < chunkHeadLength || !isChunkKind(kind) || kind == "IEND") {
            return false;
        }
        const auto length = qFromBigEndian<std::uint32_t>(head.constData());
        compressedTexts += isOneOf(kind, {"zTXt", "iTXt", "iCCP"}) ? 1 : 0;
        const bool tooLong = length > longestText && isOneOf(kind, {"tEXt", "zTXt", "iTXt", "iCCP"});
        if (tooLong || compressedTexts > mostCompressedTexts) {
            return true;
        }
        place += chunkHeadLength + std::uint64_t{length} + chunkChecksumLength;
    }
    return true;
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
