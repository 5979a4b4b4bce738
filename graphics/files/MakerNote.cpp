// SPDX-License-Identifier: MIT
#include "graphics/files/MakerNote.h"

#include "graphics/files/TiffDirectory.h"

#include <QByteArrayView>

#include <algorithm>
#include <cstdint>
#include <map>

namespace grisal::graphics
{

namespace
{

bool repeatsTagsAt(const QByteArray &note, qsizetype offset, TiffByteOrder order)
{
    constexpr int maxRepetitions = 8;
    std::map<std::uint16_t, int> repetitions;
    const std::vector<TiffEntry> entries = decodeDirectory(note.mid(offset, maxTiffDirectorySize), order);
    return std::any_of(entries.begin(), entries.end(), [&](const TiffEntry &entry) {
        const bool isValid = entry.size() <= static_cast<std::uint64_t>(note.size());
        return isValid && ++repetitions[entry.tag] > maxRepetitions;
    });
}

} // namespace

// The offsets at which Exiv2 expects a directory that may refer to inner ones.
bool repeatsTags(const QByteArray &note)
{
    constexpr QByteArrayView nikonStart{"Nikon\0", 6};
    constexpr qsizetype nikonHeader = 10; // followed by that of a TIFF file
    for (const TiffByteOrder order : {TiffByteOrder(false), TiffByteOrder(true)}) {
        for (const qsizetype header : {0, 8, 12}) {
            if (repeatsTagsAt(note, header, order)) {
                return true;
            }
        }
        const QByteArray offset = note.mid(nikonHeader + 4, 4);
        if (note.startsWith(nikonStart) && offset.size() == 4 &&
            repeatsTagsAt(note, nikonHeader + order.get<std::uint32_t>(offset.constData()), order)) {
            return true;
        }
    }
    return false;
}

} // namespace grisal::graphics
