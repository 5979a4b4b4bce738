// SPDX-License-Identifier: MIT
#include "graphics/files/ImageFormat.h"

#include <QFileInfo>

#include <array>
#include <cstddef>

namespace grisal::graphics
{

namespace
{

struct Signature {
    ImageFormat format;
    QByteArrayView start;
};

constexpr std::array<Signature, 6> signatures{{
    {ImageFormat::Jpeg, "\xff\xd8\xff"},
    {ImageFormat::Png, "\x89PNG\r\n\x1a\n"},
    {ImageFormat::Tiff, QByteArrayView("II*\0", 4)},
    {ImageFormat::Tiff, QByteArrayView("MM\0*", 4)},
    {ImageFormat::Tiff, QByteArrayView("II+\0", 4)},
    {ImageFormat::Tiff, QByteArrayView("MM\0+", 4)},
}};

struct Extension {
    const char *text;
    ImageFormat format;
};

constexpr std::array<Extension, 5> extensions{{
    {"jpg", ImageFormat::Jpeg},
    {"jpeg", ImageFormat::Jpeg},
    {"png", ImageFormat::Png},
    {"tif", ImageFormat::Tiff},
    {"tiff", ImageFormat::Tiff},
}};

const char *prefixOf(ImageFormat format)
{
    switch (format) {
    case ImageFormat::Jpeg:
        return "JPEG:";
    case ImageFormat::Png:
        return "PNG:";
    case ImageFormat::Tiff:
        return "TIFF:";
    }
    return "";
}

} // namespace

std::optional<ImageFormat> formatOfContents(QByteArrayView start)
{
    for (const Signature &signature : signatures) {
        if (start.startsWith(signature.start)) {
            return signature.format;
        }
    }
    return std::nullopt;
}

std::optional<ImageFormat> formatOfName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    for (const Extension &extension : extensions) {
        if (suffix.compare(QLatin1String(extension.text), Qt::CaseInsensitive) == 0) {
            return extension.format;
        }
    }
    return std::nullopt;
}

NameParts partsOfName(const QString &path)
{
    const QFileInfo name(path);
    return formatOfName(path) ? NameParts{name.completeBaseName(), name.suffix()} : NameParts{name.fileName(), {}};
}

QString extensionOf(ImageFormat format)
{
    switch (format) {
    case ImageFormat::Png:
        return QStringLiteral("png");
    case ImageFormat::Tiff:
        return QStringLiteral("tif");
    case ImageFormat::Jpeg:
        break;
    }
    return QStringLiteral("jpg");
}

Message unknownExtension()
{
    return Message(QT_TRANSLATE_NOOP("Message", "the name has to end in .jpg, .jpeg, .png, .tif or .tiff"));
}

std::string magickName(ImageFormat format, const std::string &file)
{
    return prefixOf(format) + file;
}

// Additional slashes are ignored.
std::string pathOfOpenFile(int descriptor)
{
    constexpr std::size_t width = 11;
    const std::string number = std::to_string(descriptor);
    return "/proc/self/fd" + std::string(width - number.size(), '/') + number;
}

} // namespace grisal::graphics
