// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/ImageFormat.h"
#include "graphics/files/OpenFile.h"

#include <QString>

#include <cstdint>
#include <string>

namespace grisal::graphics
{

/// A file to be opened as an image, checked before GraphicsMagick reads it. It has to be a regular file, or a link to
/// one, that starts like a JPEG, PNG or TIFF file; PNG files with texts of excessive length or number are rejected,
/// since a compressed text may expand a thousandfold. Nothing here blocks, also not on pipes and devices.
class ImageFile
{
public:
    explicit ImageFile(const QString &path);

    /// Why the file cannot be opened as an image; empty if it can.
    QString problem() const { return m_problem; }

    /// The file name to give to GraphicsMagick, valid while this object exists. Only without a problem.
    std::string name() const { return magickName(m_format, pathOfOpenFile(descriptor())); }

    /// That of the file for GraphicsMagick, which is a copy where the orientation has to be normalised.
    int descriptor() const { return m_normalised.isOpen() ? m_normalised.descriptor() : m_file.descriptor(); }

    /// The file itself, and the format of its contents. Only without a problem.
    const OpenFile &file() const { return m_file; }
    ImageFormat format() const { return m_format; }

    /// Whether a file of this size can contain an image of that many pixels. A photograph is not compressed below one
    /// byte for 200 pixels; a file that declares more pixels is made to exhaust the memory. Images of up to 90
    /// megapixels, which take up to a gigabyte, are not checked.
    bool canHold(std::uint64_t pixels) const;

private:
    void open(const QString &path);
    void detectFormat(const QString &path);
    bool hasInvalidTexts() const;
    void normaliseTiff();

    OpenFile m_file;
    OpenFile m_normalised; ///< a copy for GraphicsMagick, where it needs one
    ImageFormat m_format = ImageFormat::Jpeg;
    std::uint64_t m_size = 0;
    QString m_problem;
};

/// Whether a file that was just written has the end of its format: GraphicsMagick does not report every full disk.
bool hasCompleteEnd(const OpenFile &file, ImageFormat format);

} // namespace grisal::graphics
