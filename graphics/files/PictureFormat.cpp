// SPDX-License-Identifier: MIT
#include "graphics/files/PictureFormat.h"

#include <QFileInfo>

#include <array>

namespace grisal::graphics
{

namespace
{

struct Signature {
    PictureFormat format;
    QByteArrayView start;
};

constexpr std::array<Signature, 6> signatures{{
    {PictureFormat::Jpeg, "\xff\xd8\xff"},
    {PictureFormat::Png, "\x89PNG\r\n\x1a\n"},
    {PictureFormat::Tiff, QByteArrayView("II*\0", 4)},
    {PictureFormat::Tiff, QByteArrayView("MM\0*", 4)},
    {PictureFormat::Tiff, QByteArrayView("II+\0", 4)},
    {PictureFormat::Tiff, QByteArrayView("MM\0+", 4)},
}};

struct Extension {
    const char *text;
    PictureFormat format;
};

constexpr std::array<Extension, 5> extensions{{
    {"jpg", PictureFormat::Jpeg},
    {"jpeg", PictureFormat::Jpeg},
    {"png", PictureFormat::Png},
    {"tif", PictureFormat::Tiff},
    {"tiff", PictureFormat::Tiff},
}};

const char *prefixOf(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Jpeg:
        return "JPEG:";
    case PictureFormat::Png:
        return "PNG:";
    case PictureFormat::Tiff:
        return "TIFF:";
    }
    return "";
}

} // namespace

std::optional<PictureFormat> formatOfContents(QByteArrayView start)
{
    for (const Signature &signature : signatures) {
        if (start.startsWith(signature.start)) {
            return signature.format;
        }
    }
    return std::nullopt;
}

std::optional<PictureFormat> formatOfName(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    for (const Extension &extension : extensions) {
        if (suffix.compare(QLatin1String(extension.text), Qt::CaseInsensitive) == 0) {
            return extension.format;
        }
    }
    return std::nullopt;
}

std::string libraryName(PictureFormat format, const std::string &file)
{
    return prefixOf(format) + file;
}

std::string nameOfOpenFile(int descriptor)
{
    return "/proc/self/fd/" + std::to_string(descriptor);
}

} // namespace grisal::graphics
