// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/OpenFile.h"

#include <QByteArray>

#include <cstdint>

namespace grisal::graphics
{

/// The metadata of an image file as Exiv2 decodes it; absent blocks are empty.
struct MetadataBlocks {
    QByteArray exif; ///< a TIFF structure without XMP, IPTC, profile and thumbnail
    QByteArray iptc; ///< IPTC records
    QByteArray xmp;  ///< an XMP packet
    QByteArray profile;
    /// False where metadata was left out because it is invalid or exceeds a limit.
    bool complete = true;
};

/// Limits of the blocks in bytes. With them and the other limits of extractMetadata() all metadata of a file is read in
/// less than a second.
constexpr std::uint32_t maxExifSize = 1 << 19;
constexpr qsizetype maxIptcSize = 1 << 20;
constexpr qsizetype maxXmpSize = 1 << 21;
constexpr qsizetype maxProfileSize = 1 << 22;

/// Extracts the metadata of an image file. Nothing else of the file is read, and no block that takes Exiv2 long to
/// decode is returned: see isWithinXmpLimits(); the entries of Exif directories and the records of IPTC are limited
/// too.
MetadataBlocks extractMetadata(const OpenFile &file, ImageFormat format);

/// Inserts the metadata of a small file, which has the given format and contains nothing else, into an image file that
/// was just written and has none. The pixels are moved within the file, block by block. Returns false and leaves the
/// file unchanged where it is invalid or the disk has no space; throws where the file is damaged afterwards.
bool insertMetadata(const OpenFile &file, ImageFormat format, const QByteArray &metadata);

/// The smallest file of a format, for Exiv2 to add metadata to. Empty for TIFF, which Exiv2 creates itself.
QByteArray emptyImageFile(ImageFormat format);

} // namespace grisal::graphics
