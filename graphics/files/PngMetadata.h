// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/MetadataBlocks.h"

namespace grisal::graphics
{

/// What extractMetadata() and insertMetadata() do for PNG files.
MetadataBlocks extractPngMetadata(const OpenFile &file);
bool insertPngMetadata(const OpenFile &file, const QByteArray &metadata);

} // namespace grisal::graphics
