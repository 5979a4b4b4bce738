// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/Metadata.h"
#include "graphics/image/Image.h"
#include "graphics/Message.h"

#include <QString>

#include <memory>
#include <string>

namespace grisal
{

/// A picture as it was opened.
struct Picture {
    graphics::Image image;
    graphics::Metadata metadata;
    std::string info; ///< its description for the log
};

/// The picture that is open, and the ways in and out: reading and writing of files. Shows nothing; failures are
/// written to the log, in English.
class Session
{
public:
    using PicturePointer = std::shared_ptr<const Picture>;

    /// The picture that is open; null before the first one.
    const PicturePointer &picture() const { return m_picture; }

    /// Replaces the picture that is open.
    void setPicture(PicturePointer picture) { m_picture = std::move(picture); }

    /// Reads a picture from a JPEG, PNG or TIFF file; null where that fails. The picture that is open stays open. For a
    /// file that is known not to exist it is returned again: a recent picture that was moved away is opened once more.
    /// A file that cannot be examined, in a folder without access, say, is not known to be missing.
    PicturePointer read(const QString &path);

    /// Writes an image with the metadata of the open picture, in the format of the extension of `path`. False, with an
    /// existing file unchanged, where that fails.
    bool write(graphics::Image image, const QString &path);

    /// What was wrong with the last read or write although it gave a result; empty otherwise.
    const graphics::Message &warning() const { return m_warning; }

private:
    PicturePointer m_picture;
    graphics::Message m_warning;
};

} // namespace grisal
