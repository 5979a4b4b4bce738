// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>
#include <string>

namespace grisal::graphics
{

/// The formats of image files that are read and written, and no others: the image library would start other programs
/// for some and draw what it finds in others.
enum class PictureFormat { Jpeg, Png, Tiff };

/// How many bytes at the start of a file tell its format.
constexpr int signatureLength = 8;

/// The format that the first bytes of a file tell, whatever its name.
std::optional<PictureFormat> formatOfContents(QByteArrayView start);

/// The format that a file name's extension asks for, in upper or lower case.
std::optional<PictureFormat> formatOfName(const QString &path);

/// The image library's name for a file in a format: with it the library neither looks at name nor contents to choose a
/// format of its own.
std::string libraryName(PictureFormat format, const std::string &file);

/// The name under which an open file can be opened once more. It holds none of the characters that the library takes
/// for something else in the names that users choose.
std::string nameOfOpenFile(int descriptor);

} // namespace grisal::graphics
