// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/MetadataBlocks.h"

#include <QByteArrayView>

namespace grisal::graphics
{

/// What precedes a block of Exif in a segment of a JPEG file and in a text of a PNG file.
constexpr QByteArrayView exifSignature{"Exif\0\0", 6};

/// What extractMetadata() and insertMetadata() do for TIFF files.
MetadataBlocks extractTiffMetadata(const OpenFile &file);
bool insertTiffMetadata(const OpenFile &file, const QByteArray &metadata);

/// The same for a block of Exif, which is a TIFF structure in another file: only MetadataBlocks::exif is filled.
MetadataBlocks extractExif(const QByteArray &block);

} // namespace grisal::graphics
