// SPDX-License-Identifier: MIT
#include "graphics/files/MakerNote.h"

#include "graphics/files/TiffDirectory.h"

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

// The directory follows a header of the manufacturer, or Nikon's header of ten bytes and that of a TIFF file.
bool repeatsTags(const QByteArray &note)
{
    constexpr qsizetype maxHeader = 64;
    constexpr qsizetype nikonHeader = 10;
    for (const TiffByteOrder order : {TiffByteOrder(false), TiffByteOrder(true)}) {
        for (qsizetype offset = 0; offset < std::min(maxHeader, note.size()); ++offset) {
            if (repeatsTagsAt(note, offset, order)) {
                return true;
            }
        }
        const QByteArray start = note.mid(nikonHeader + 4, 4);
        if (start.size() == 4 &&
            repeatsTagsAt(note, nikonHeader + order.get<std::uint32_t>(start.constData()), order)) {
            return true;
        }
    }
    return false;
}

} // namespace grisal::graphics
