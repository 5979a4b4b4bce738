// SPDX-License-Identifier: MIT
#include "graphics/files/LookInFile.h"

#include "graphics/files/ImageFile.h"
#include "graphics/files/Metadata.h"

namespace grisal::graphics
{

LookInFile readLook(const QString &path)
{
    const ImageFile file(path);
    if (!file.problem().isEmpty()) {
        return {{}, file.problem()};
    }
    return {Metadata(file.file(), file.format()).sourceLook(), {}};
}

} // namespace grisal::graphics
