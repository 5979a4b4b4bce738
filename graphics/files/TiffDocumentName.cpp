// SPDX-License-Identifier: MIT
#include "graphics/files/TiffDocumentName.h"

#include "graphics/files/TiffDirectory.h"

#include <algorithm>
#include <optional>

namespace grisal::graphics
{

void removeDocumentName(const OpenFile &file)
{
    const QByteArray header = file.bytesAt(0, tiffHeaderSize);
    const std::optional<TiffByteOrder> order = header.size() == tiffHeaderSize ? tiffByteOrderOf(header) : std::nullopt;
    if (!order) {
        return;
    }
    const auto start = order->get<std::uint32_t>(header.constData() + 4);
    std::vector<TiffEntry> entries = decodeDirectory(file.bytesAt(start, maxTiffDirectorySize), *order);
    const auto name = std::find_if(entries.begin(), entries.end(), [](const TiffEntry &entry) {
        return entry.tag == static_cast<std::uint16_t>(TiffTag::DocumentName);
    });
    if (name == entries.end()) {
        return;
    }
    if (!name->isInline()) {
        const auto value = order->get<std::uint32_t>(name->content.constData());
        file.overwrite(value, QByteArray(static_cast<qsizetype>(name->size()), '\0'));
    }
    entries.erase(name);
    file.overwrite(start, encodeDirectory(entries, *order) + QByteArray(tiffEntrySize, '\0'));
}

} // namespace grisal::graphics
