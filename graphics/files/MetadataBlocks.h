// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/OpenFile.h"

#include <QByteArray>

namespace grisal::graphics
{

/// The metadata of a PNG or TIFF file: a small file of the same format that contains nothing else.
struct MetadataBlocks {
    QByteArray file; ///< empty if there is no metadata
    /// False where metadata was left out for its size: it has to fit into the memory once more, decoded by Exiv2.
    bool complete = true;
};

/// Extracts the metadata of a PNG or TIFF file. Nothing else of the file is read. JPEG files need no extraction: Exiv2
/// itself reads no more of them than that.
MetadataBlocks extractMetadata(const OpenFile &file, ImageFormat format);

/// Inserts the metadata of such a small file into an image file that was just written and has none. The pixels are
/// moved within the file, block by block. Returns false and leaves the file unchanged where it is invalid or the disk
/// has no space; throws where the file is damaged afterwards.
bool insertMetadata(const OpenFile &file, ImageFormat format, const QByteArray &metadata);

/// The smallest file of a format, for Exiv2 to add metadata to. Empty for TIFF, which Exiv2 creates itself.
QByteArray emptyImageFile(ImageFormat format);

} // namespace grisal::graphics
