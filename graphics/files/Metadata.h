// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"
#include "graphics/files/PictureFormat.h"

#include <memory>

namespace grisal::graphics
{

/// What an image file says about its picture besides the pixels: Exif with the maker's note, IPTC, XMP, and the colour
/// profile if it is one for red, green and blue. What the file says about how its pixels are kept, and thumbnails, do
/// not belong to it.
///
/// Copies share their contents, which never change. To be used from one thread. Nothing here throws, unless told, nor
/// writes to standard error.
class Metadata
{
public:
    /// Says nothing.
    Metadata() = default;

    /// What a picture file says. Only the file itself is looked at.
    Metadata(const OpenFile &file, PictureFormat format);

    /// Whether there is nothing to say.
    bool isEmpty() const { return m_contents == nullptr; }

    /// Whether all of it was understood, and not too large.
    bool isComplete() const { return m_complete; }

    /// How the pixels of the file that was read are turned, 1 to 8 as turnUpright() has it; 1 where the file does not
    /// tell, or something impossible.
    int orientation() const { return m_orientation; }

    /// Puts all of it into a picture file of a format that was just written and has nothing of the kind, with the size
    /// of its picture, which stands upright. False where not all of it got in, with a file that is whole all the same;
    /// throws std::exception where the file is damaged.
    bool writeInto(const OpenFile &file, PictureFormat format, int width, int height) const;

private:
    struct Contents;

    static QByteArray pngOf(const Contents &contents);
    static QByteArray fileOf(const Contents &contents, PictureFormat format);

    std::shared_ptr<const Contents> m_contents; ///< null where there is nothing to say
    int m_orientation = 1;
    bool m_complete = true;
};

} // namespace grisal::graphics
