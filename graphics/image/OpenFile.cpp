// SPDX-License-Identifier: MIT
#include "graphics/image/OpenFile.h"

#include <unistd.h>

namespace grisal::graphics
{

OpenFile::~OpenFile()
{
    if (isOpen()) {
        close(m_descriptor);
    }
}

} // namespace grisal::graphics
