// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/MetadataBlocks.h"

namespace grisal::graphics
{

/// What extractMetadata() and insertMetadata() do for JPEG files. XMP in extension segments, which consists of images
/// and depth maps for the most part, is not extracted.
MetadataBlocks extractJpegMetadata(const OpenFile &file);
bool insertJpegMetadata(const OpenFile &file, const QByteArray &metadata);

} // namespace grisal::graphics
