// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/ImageHeader.h"
#include "graphics/files/OpenFile.h"
#include "graphics/Message.h"

#include <QString>

#include <cstdint>
#include <string>

namespace grisal::graphics
{

/// A file to be opened as an image, checked before GraphicsMagick reads it. It has to be a regular file, or a link to
/// one, that starts like a JPEG, PNG or TIFF file and may contain the image that its header declares, see
/// isPlausible(); PNG files with texts of excessive length or number are rejected, since a compressed text may expand a
/// thousandfold. Nothing here blocks, also not on pipes and devices.
class ImageFile
{
public:
    explicit ImageFile(const QString &path);

    /// Why the file cannot be opened as an image; empty if it can.
    const Message &problem() const { return m_problem; }

    /// The file name to give to GraphicsMagick, valid while this object exists. Only without a problem.
    std::string name() const { return magickName(m_format, pathOfOpenFile(descriptor())); }

    /// Copies the file into memory where GraphicsMagick needs a copy: a TIFF file whose orientation has to be
    /// normalised. Throws where there is not enough memory. Only without a problem.
    void normalise();

    /// That of the file for GraphicsMagick, which is the copy after normalise() made one.
    int descriptor() const { return m_normalised.isOpen() ? m_normalised.descriptor() : m_file.descriptor(); }

    QString path() const { return m_path; }

    /// The file itself, the format of its contents, and its header. Only without a problem.
    const OpenFile &file() const { return m_file; }
    ImageFormat format() const { return m_format; }
    const ImageHeader &header() const { return m_header; }

    /// The most pixels that GraphicsMagick may allocate for an image.
    std::uint64_t maxPixels() const;

    /// The most memory that reading the image takes, in bytes, including the copy of normalise().
    std::uint64_t memoryToRead() const;

private:
    void open();
    void detectFormat();
    void checkHeader();

    QString m_path;
    OpenFile m_file;
    OpenFile m_normalised; ///< a copy for GraphicsMagick, where it needs one
    std::uint64_t m_copySize = 0;
    ImageFormat m_format = ImageFormat::Jpeg;
    ImageHeader m_header;
    Message m_problem;
};

/// Whether a file is a regular file that starts like a JPEG, PNG or TIFF file. Reads a few bytes and does not block.
bool startsLikeImage(const QString &path);

/// Whether a file that was just written has the end of its format: GraphicsMagick does not report every full disk.
bool hasCompleteEnd(const OpenFile &file, ImageFormat format);

} // namespace grisal::graphics
