// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageHeader.h"

namespace grisal::graphics
{

/// The header of the first image of a TIFF or BigTIFF file; see readImageHeader().
std::optional<ImageHeader> readTiffHeader(const OpenFile &file);

} // namespace grisal::graphics
