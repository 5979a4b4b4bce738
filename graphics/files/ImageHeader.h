// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/OpenFile.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace grisal::graphics
{

/// The size of an image and its encoding, as the file declares them. Nothing is checked: a malicious file declares what
/// it likes.
struct ImageHeader {
    std::uint32_t width = 0;  ///< in pixels
    std::uint32_t height = 0; ///< in pixels
    int bitsPerSample = 8;    ///< of the decoded samples: 16 for the colours of a TIFF palette
    int samplesPerPixel = 1;  ///< at most 65535
    bool isJpeg = false;      ///< whether the pixels are compressed as in JPEG files, also within a TIFF file

    /// What a decoder may hold besides the resulting image, in bytes per pixel: the coefficients of a JPEG file of
    /// several scans, an interlaced PNG, a TIFF strip as large as the image.
    std::uint32_t decoderBytesPerPixel = 0;

    /// Limited, so that the memory for them can be computed.
    std::uint64_t pixels() const
    {
        constexpr std::uint64_t most = std::uint64_t{1} << 32;
        return std::min(std::uint64_t{width} * height, most);
    }
};

/// Reads the header of a JPEG, PNG or TIFF file without GraphicsMagick, whose ping() decodes all of a progressive JPEG.
/// Of a TIFF file it is the header of the first image. Takes a few kilobytes, whatever the file contains; returns
/// nothing where no size is found.
std::optional<ImageHeader> readImageHeader(const OpenFile &file, ImageFormat format);

} // namespace grisal::graphics
