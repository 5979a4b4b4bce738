// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/MetadataBlocks.h"

namespace grisal::graphics
{

/// What metadataOf() and insertMetadata() do for TIFF files.
MetadataBlocks tiffMetadataOf(const OpenFile &file);
bool insertTiffMetadata(const OpenFile &file, const QByteArray &metadata);

} // namespace grisal::graphics
