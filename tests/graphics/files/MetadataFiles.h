// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <exiv2/exiv2.hpp>

namespace grisal::test
{

/// What a file says about its picture, as the metadata library itself has it.
struct Metadata {
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    QByteArray profile;

    /// The text of a value; empty where there is none.
    std::string operator[](const char *key) const;

    bool isEmpty() const { return exif.empty() && iptc.empty() && xmp.empty() && profile.isEmpty(); }
};

Metadata metadataIn(const QString &path);

/// Makes a picture file say so, without the program's own code.
void setMetadata(const QString &path, const Metadata &metadata);

/// Of each kind something, with a thumbnail, the size of the picture and an orientation of 6.
Metadata fullMetadata();

/// A colour profile that says nothing but what colours it is for, in four letters.
QByteArray profileFor(const char *colours, int size = 600);

/// Adds a chunk behind the first one of a PNG file.
void addChunk(const QString &path, const char *kind, const QByteArray &contents);

/// A TIFF structure with these Exif values.
QByteArray exifBlock(const Exiv2::ExifData &exif);

} // namespace grisal::test
