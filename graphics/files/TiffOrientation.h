// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

namespace grisal::graphics
{

/// Returns a copy of a TIFF file in memory with orientation 1, or no file where the orientation is 1 or absent.
/// GraphicsMagick rejects TIFF files with an invalid orientation, and for some kinds of pixels mirrors the image, or
/// each strip, by itself. The holes of a sparse file remain holes. Throws where there is not enough memory.
OpenFile copyWithNormalOrientation(const OpenFile &file);

/// The memory that the copy takes, in bytes; 0 where none is needed.
std::uint64_t sizeOfNormalisedCopy(const OpenFile &file);

} // namespace grisal::graphics
