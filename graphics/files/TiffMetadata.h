// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/MetadataBlocks.h"

namespace grisal::graphics
{

/// What extractMetadata() and insertMetadata() do for TIFF files.
MetadataBlocks extractTiffMetadata(const OpenFile &file);
bool insertTiffMetadata(const OpenFile &file, const QByteArray &metadata);

} // namespace grisal::graphics
