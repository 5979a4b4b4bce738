// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/Message.h"

#include <QByteArrayView>
#include <QLatin1String>
#include <QString>

#include <optional>
#include <string>

namespace grisal::graphics
{

/// The formats of image files that are read and written. No others are: GraphicsMagick starts other programs for some
/// formats and executes drawing commands of others.
enum class ImageFormat { Jpeg, Png, Tiff };

/// How many bytes at the start of a file identify its format.
constexpr int signatureLength = 8;

/// The format of a file by its first bytes, whatever its name.
std::optional<ImageFormat> formatOfContents(QByteArrayView start);

/// The format of a file by the extension of its name, in upper or lower case.
std::optional<ImageFormat> formatOfName(const QString &path);

/// The name of a file in two parts, without its folder.
struct NameParts {
    QString base;
    QString extension; ///< without the dot; empty if the name has none of an image format, which is then part of `base`
};

NameParts partsOfName(const QString &path);

/// What is added to the base of a name for the name of the converted image in the same folder.
constexpr QLatin1String convertedSuffix("-bw");

/// The extension for files of a format, without the dot.
QString extensionOf(ImageFormat format);

/// Why formatOfName() returns nothing.
Message unknownExtension();

/// The file name as GraphicsMagick takes it, with the format in front: it then chooses the format by neither name nor
/// contents.
std::string magickName(ImageFormat format, const std::string &file);

/// The path under which an open file can be opened again. Unlike names that users choose, it contains no characters
/// that are special to GraphicsMagick.
std::string pathOfOpenFile(int descriptor);

} // namespace grisal::graphics
