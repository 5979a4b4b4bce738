// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

namespace grisal::graphics
{

/// Removes the document name from the first directory of a TIFF file that was just written: GraphicsMagick stores the
/// name there under which it opens the file. The size of the file stays the same. Throws where writing fails.
void removeDocumentName(const OpenFile &file);

} // namespace grisal::graphics
