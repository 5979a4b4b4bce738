// SPDX-License-Identifier: MIT
#include "graphics/files/TiffDocumentName.h"

#include "graphics/files/TiffDirectory.h"

#include <algorithm>
#include <optional>

namespace grisal::graphics
{

void removeDocumentName(const OpenFile &file)
{
    std::optional<TiffFirstDirectory> directory = readFirstDirectory(file);
    if (!directory) {
        return;
    }
    const TiffByteOrder order = directory->header.order;
    std::vector<TiffEntry> &entries = directory->entries;
    const auto name = std::find_if(entries.begin(), entries.end(),
                                   [](const TiffEntry &entry) { return entry.has(TiffTag::DocumentName); });
    if (name == entries.end()) {
        return;
    }
    if (!name->isInline()) {
        const auto value = order.get<std::uint32_t>(name->content.constData());
        file.overwrite(value, QByteArray(static_cast<qsizetype>(name->size()), '\0'));
    }
    entries.erase(name);
    file.overwrite(directory->header.directoryOffset,
                   encodeDirectory(entries, order) + QByteArray(tiffEntrySize, '\0'));
}

} // namespace grisal::graphics
