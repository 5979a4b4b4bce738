// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <exiv2/exiv2.hpp>

namespace grisal::test
{

/// The metadata of a file as Exiv2 reads it.
struct Metadata {
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    QByteArray profile;

    /// The text of a value; empty if there is none.
    std::string operator[](const char *key) const;

    bool isEmpty() const { return exif.empty() && iptc.empty() && xmp.empty() && profile.isEmpty(); }
};

Metadata metadataIn(const QString &path);

/// Writes metadata into an image file with Exiv2 alone.
void setMetadata(const QString &path, const Metadata &metadata);

/// Some metadata of each kind, with a thumbnail, the size of the image and orientation 6.
Metadata fullMetadata();

/// A colour profile without tags for a colour space, named by four letters.
QByteArray profileFor(const char *colours, int size = 600);

/// Inserts a segment behind the first two bytes of a JPEG file.
void addSegment(const QString &path, char marker, const QByteArray &contents);

/// Adds a chunk behind the first one of a PNG file.
void addChunk(const QString &path, const char *kind, const QByteArray &contents);

/// Adds a packet of XMP to a JPEG, PNG or little-endian TIFF file without any.
void addXmp(const QString &path, const QByteArray &packet);

/// A TIFF structure with these Exif values.
QByteArray exifBlock(const Exiv2::ExifData &exif);

} // namespace grisal::test
