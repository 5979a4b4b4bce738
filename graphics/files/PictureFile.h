// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/OpenFile.h"
#include "graphics/files/PictureFormat.h"

#include <QString>

#include <cstdint>
#include <string>

namespace grisal::graphics
{

/// A file that somebody wants to open as a picture, looked at before the image library sees it. Only plain files, and
/// links to them, whose first bytes are those of a JPEG, PNG or TIFF file pass, and no PNG with texts of absurd length
/// or number, of which a compressed one may grow a thousandfold. Nothing here waits: not for a pipe that nobody writes
/// to, not for a device.
class PictureFile
{
public:
    explicit PictureFile(const QString &path);

    /// Why the file is none that can be opened as a picture; empty if it is one.
    QString problem() const { return m_problem; }

    /// The image library's name for the file, good while this lives. Only without a problem.
    std::string name() const { return libraryName(m_format, nameOfOpenFile(descriptor())); }

    /// That of the file that the library gets to see: its pixels stand as they are kept, whatever the file says.
    int descriptor() const { return m_upright.isOpen() ? m_upright.descriptor() : m_file.descriptor(); }

    /// The file itself, and the format of its contents. Only without a problem.
    const OpenFile &file() const { return m_file; }
    PictureFormat format() const { return m_format; }

    /// Whether a file of this size may hold a picture of that many pixels. A photograph does not come down to less than
    /// a byte for two hundred pixels; a file that promises more is made to fill the memory. Pictures of up to 90
    /// megapixels, which take up to a gigabyte, are taken at their word.
    bool canHold(std::uint64_t pixels) const;

private:
    void open(const QString &path);
    void look(const QString &path);
    bool hasInvalidTexts() const;
    void standUpright();

    OpenFile m_file;
    OpenFile m_upright; ///< a copy for the library, if it needs one
    PictureFormat m_format = PictureFormat::Jpeg;
    std::uint64_t m_size = 0;
    QString m_problem;
};

/// Whether a file that was just written ends as its format does: a writer that ran out of space may not have noticed.
bool endsAsItShould(const OpenFile &file, PictureFormat format);

} // namespace grisal::graphics
