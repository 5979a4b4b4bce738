// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/FreeMemory.h"
#include "graphics/files/Metadata.h"
#include "graphics/image/Image.h"
#include "graphics/look/Look.h"
#include "graphics/Message.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>

namespace grisal
{

namespace graphics
{
class ImageFile;
}

/// An image with the metadata of the file that it was opened from.
struct Picture {
    graphics::Image image;
    graphics::Metadata metadata;
    std::string info;     ///< description for the log
    QString proposedName; ///< file name for the converted image
};

/// Why a picture is not opened: the memory that it needs and that is free, in bytes.
struct MemoryShortage {
    std::uint64_t needed = 0;
    std::uint64_t free = 0;
};

/// The open image; reads and writes files. Has no user interface; failures are written to the log, in English.
class Session
{
public:
    using PicturePointer = std::shared_ptr<const Picture>;

    explicit Session(graphics::MemorySources memory = {}) : m_memory(std::move(memory)) {}

    /// The open image; null before the first one.
    const PicturePointer &picture() const { return m_picture; }

    /// Replaces the open image.
    void setPicture(PicturePointer picture) { m_picture = std::move(picture); }

    /// Reads an image from a JPEG, PNG or TIFF file; null on failure. The open image stays open. If the file is known
    /// not to exist, returns the open image again, so that a recent image whose file was moved is opened once more. A
    /// file that cannot be examined, for example in a folder without access, is not known to be missing. An image that
    /// needs more memory to be opened and saved than is free is not read: shortage() then contains the figures.
    PicturePointer read(const QString &path);

    /// Of the last read; none where it was read or could not be read for another reason.
    const std::optional<MemoryShortage> &shortage() const { return m_shortage; }

    /// Whether a file starts like a JPEG, PNG or TIFF file.
    static bool startsLikeImage(const QString &path);

    /// Checks that the extension of a path is that of a format; otherwise problem() contains the reason.
    bool checkName(const QString &path);

    /// Writes an image with the metadata of the open image and the look that it was rendered with, in the format given
    /// by the extension of `path`. Returns false on failure; problem() then contains the reason, and an existing file
    /// is unchanged, unless the new one could not be read back.
    bool write(graphics::Image image, const QString &path, const graphics::Look &look);

    /// Why the last read or write failed, or the last name has no extension of a format; empty otherwise. For a read
    /// that failed for lack of memory, see shortage().
    const graphics::Message &problem() const { return m_problem; }

    /// A problem of the last read or write that did not prevent its result; empty if there was none.
    const graphics::Message &warning() const { return m_warning; }

private:
    bool failToWrite(const QString &path, const graphics::Message &problem);
    bool fitsIntoMemory(const graphics::ImageFile &file);

    graphics::MemorySources m_memory;
    PicturePointer m_picture;
    std::optional<MemoryShortage> m_shortage;
    graphics::Message m_problem;
    graphics::Message m_warning;
};

} // namespace grisal
