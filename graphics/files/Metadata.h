// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/OpenFile.h"

#include <QByteArray>

#include <memory>

namespace Exiv2
{
class XmpData;
}

namespace grisal::graphics
{

/// The metadata of an image file: Exif with the maker's note, IPTC, XMP, and the colour profile if it is an RGB
/// profile. Entries that describe the encoding of the pixels, and thumbnails, are not included.
///
/// The look of an image is one text in its XMP. A file gets the look that is set, never that of its source.
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

    /// Whether there is nothing to insert into a file.
    bool isEmpty() const { return m_contents == nullptr && m_look.isEmpty(); }

    /// Whether all metadata of the file could be decoded and was within the limits.
    bool isComplete() const { return m_complete; }

    /// The orientation of the pixels in the file that was read, 1 to 8 as in normaliseOrientation(); 1 where it is
    /// absent or invalid.
    int orientation() const { return m_orientation; }

    /// The text of the look in the file that was read; empty if there is none, and if it is not a plain text that
    /// setLook() would accept.
    QByteArray sourceLook() const { return m_sourceLook; }

    /// Sets the text of the look that writeInto() inserts; none if it is empty, which is the default. A text counts as
    /// empty unless it is UTF-8 of at most 64 KiB without control characters other than tabs and line breaks.
    void setLook(const QByteArray &text);

    /// Inserts the metadata into an image file that was just written without any, with the size of its image and
    /// orientation 1. Where the look and the XMP of the source do not fit into the format together, the XMP is inserted
    /// without the look; the look alone only where the XMP cannot be inserted. Returns false where not all of it could
    /// be inserted and the file is valid all the same; throws std::exception where the file is damaged.
    bool writeInto(const OpenFile &file, ImageFormat format, int width, int height) const;

private:
    struct Contents;

    static QByteArray pngOf(const Contents &contents, const Exiv2::XmpData &xmp);
    static QByteArray fileOf(const Contents &contents, const Exiv2::XmpData &xmp, ImageFormat format);

    std::shared_ptr<const Contents> m_contents; ///< null if the source has no metadata
    QByteArray m_sourceLook;
    QByteArray m_look; ///< to be written
    int m_orientation = 1;
    bool m_complete = true;
};

} // namespace grisal::graphics
