// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

namespace grisal::graphics
{

/// The image library refuses TIFF files with an impossible orientation, and mirrors pictures of some kinds, or strips
/// of them, that have another one than the first. Returns a copy in memory that names the first in place of another;
/// no file where the first is named, or none. Throws where there is no memory for it.
OpenFile uprightTiff(const OpenFile &file);

} // namespace grisal::graphics
