// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"
#include "graphics/files/PictureFormat.h"

#include <QByteArray>

namespace grisal::graphics
{

/// The metadata of a PNG or TIFF file: a small file of the same format that contains nothing else.
struct MetadataBlocks {
    QByteArray file; ///< empty where there is none to be found
    /// False where something was left out for its size: what Exiv2 makes of it has to fit into the memory, too.
    bool complete = true;
};

/// Extracts the metadata of a PNG or TIFF file. Nothing else of the file is read. JPEG files need no extraction: Exiv2
/// itself reads no more of them than that.
MetadataBlocks extractMetadata(const OpenFile &file, PictureFormat format);

/// Puts what such a small file holds into a picture file that was just written and holds nothing of that kind. The
/// pixels are moved within the file, and nothing but a block of them is held. False, with the file as it was, where it
/// does not hold what it should or where there is no room; throws where the file is damaged.
bool insertMetadata(const OpenFile &file, PictureFormat format, const QByteArray &metadata);

/// The smallest file of a format, to be filled by others with metadata. A TIFF file is made without one.
QByteArray emptyPicture(PictureFormat format);

} // namespace grisal::graphics
