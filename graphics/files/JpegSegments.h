// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"

#include <cstdint>
#include <functional>

namespace grisal::graphics
{

/// A segment of a JPEG file: two bytes of marker, two of length, the contents.
struct JpegSegment {
    std::uint8_t marker = 0;  ///< the second byte
    std::uint64_t offset = 0; ///< of the contents
    qsizetype length = 0;     ///< of the contents, as declared

    bool isScan() const { return marker == 0xda; }
    bool isStartOfFrame() const
    {
        return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
    }
};

/// Calls `visit` with each segment of a JPEG file up to the first scan, which is included. Like decoders, skips other
/// bytes between two segments. Returns false if there are too many segments to visit all of them.
bool visitJpegSegments(const OpenFile &file, const std::function<void(const JpegSegment &)> &visit);

} // namespace grisal::graphics
