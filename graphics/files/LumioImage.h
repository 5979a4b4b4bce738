// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/Metadata.h"
#include "graphics/files/PixelRows.h"
#include "graphics/Message.h"

#include <Magick++.h>

#include <QString>

#include <cstddef>
#include <exception>
#include <string>

namespace grisal::graphics
{

class ImageFile;
class ReplacementFile;

/// An image file in memory, as GraphicsMagick holds it. The only class that reads and writes image files.
///
/// Pixels travel in interleaved buffers of the caller, rows from top to bottom without padding: R, G, B and, with the
/// alpha option, a fourth component; 8-bit samples, or 16-bit samples in machine byte order. An 8-bit sample b that is
/// copied in becomes the 16-bit sample b << 8; copied out, a 16-bit sample s becomes s >> 8.
///
/// Copies share their pixels until one of them changes. No operation but copying throws. Where one fails, it returns
/// false, problem() contains the reason, and the image is as it was before. Nothing is written to the log.
class LumioImage
{
public:
    /// An empty image: isNull().
    LumioImage();
    /// A black image of the given size and depth, 16 or 8 bits a channel. isNull() where there is no such size or not
    /// enough memory.
    LumioImage(int width, int height, bool sixteenBit);

    /// Reads a JPEG, PNG or TIFF file, whatever its name, and of several images in it the first, in normalised
    /// orientation, together with its metadata. The image is replaced only when the new one is good. A file that
    /// GraphicsMagick reads with a warning, such as one cut short, counts as good; warning() then contains the warning.
    /// A file that ImageFile rejects is not passed to GraphicsMagick at all. Takes no more than
    /// ImageFile::memoryToRead().
    bool read(ImageFile &file);
    bool read(const QString &path);

    /// Writes the image, without alpha, as true colour of its own depth, 8 or 16 bits a channel (JPEG always 8), with
    /// its metadata. The format follows from the extension of `path`: .jpg, .jpeg, .png, .tif or .tiff. `quality` is
    /// 0..100. An existing file is replaced atomically, see ReplacementFile. Where not all metadata fits into the
    /// format, warning() reports it and the image is saved all the same. A null image is reported on standard output.
    ///
    /// Files with 8 bits a channel contain the high byte of every sample. The samples of an 8-bit image are spread for
    /// that: 16-bit copies are b * 257 afterwards, as after reading.
    bool save(const QString &path, int quality);

    const Metadata &metadata() const { return m_metadata; }
    /// Sets the metadata of the files that are written from now on.
    void setMetadata(const Metadata &metadata) { m_metadata = metadata; }

    bool isNull() const;
    /// Whether the depth is 16 bits a channel. A file of more than 8 bits counts as 16.
    bool is16Bit() const;
    int width() const;
    int height() const;

    /// Copies all pixels out into width * height * (3 or 4) components and makes the image true colour. The fourth
    /// component is GraphicsMagick's opacity, of which an 8-bit buffer gets the low byte.
    bool getPixels(void *buffer, bool alpha, bool sixteenBit);

    /// Copies all pixels in from such a buffer and makes the image true colour. Without alpha the opacity becomes 255
    /// (8-bit samples) or 65535 (16-bit samples).
    bool setPixels(const void *buffer, bool alpha, bool sixteenBit);

    /// Passes all pixels to `transform`, which changes them in place, without alpha and a few rows at a time, from top
    /// to bottom. The image then is like a new one, into which the result was copied with setPixels(): what else was
    /// read from the file has no influence on the files that are written. In contrast to a copy of all pixels, this
    /// needs almost no memory. If it fails or `transform` throws, the pixels are undefined.
    bool transformRows(const RowsTransform &transform);

    /// A description for the log, several lines.
    std::string info() const;

    /// Why the last operation failed; empty if it did not.
    const Message &problem() const { return m_problem; }
    /// What was wrong with the last operation although it gave a result; empty otherwise.
    const Message &warning() const { return m_warning; }

private:
    template <typename Step>
    bool attempt(Step step)
    {
        m_problem = {};
        m_warning = {};
        try {
            step();
        } catch (const std::exception &exception) {
            m_problem = Message::quoting(QString::fromLocal8Bit(exception.what()));
            return false;
        }
        return m_problem.isEmpty();
    }
    template <typename Step>
    bool attemptWithPixels(Step step);
    void readFrom(const ImageFile &file);
    bool prepareForWriting();
    void writeTo(ReplacementFile &target, const QString &path, int quality);
    Message writePixels(const OpenFile &file, ImageFormat format);
    void writeMetadata(const OpenFile &file, ImageFormat format);
    void replaceNameInMessages(int descriptor, const QString &path);

    Magick::Image m_image;
    bool m_highBytesAreSpread = false; ///< by transformRows(), so that it need not be done before saving
    Metadata m_metadata;
    Message m_problem;
    Message m_warning;
};

} // namespace grisal::graphics
