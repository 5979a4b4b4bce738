// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/OpenFile.h"

#include <memory>

namespace grisal::graphics
{

/// The metadata of an image file: Exif with the maker's note, IPTC, XMP, and the colour profile if it is an RGB
/// profile. Entries that describe the encoding of the pixels, and thumbnails, are not included.
///
/// Copies share their contents, which are immutable. For use from one thread. Functions do not throw unless documented,
/// and write nothing to standard error.
class Metadata
{
public:
    /// No metadata.
    Metadata() = default;

    /// Reads the metadata of an image file.
    Metadata(const OpenFile &file, ImageFormat format);

    bool isEmpty() const { return m_contents == nullptr; }

    /// Whether all metadata of the file could be decoded and was within the limits.
    bool isComplete() const { return m_complete; }

    /// The orientation of the pixels in the file that was read, 1 to 8 as in normaliseOrientation(); 1 where it is
    /// absent or invalid.
    int orientation() const { return m_orientation; }

    /// Inserts the metadata into an image file that was just written without any, with the size of its image and
    /// orientation 1. Returns false where not all of it could be inserted and the file is valid all the same; throws
    /// std::exception where the file is damaged.
    bool writeInto(const OpenFile &file, ImageFormat format, int width, int height) const;

private:
    struct Contents;

    static QByteArray pngOf(const Contents &contents);
    static QByteArray fileOf(const Contents &contents, ImageFormat format);

    std::shared_ptr<const Contents> m_contents; ///< null if there is no metadata
    int m_orientation = 1;
    bool m_complete = true;
};

} // namespace grisal::graphics
