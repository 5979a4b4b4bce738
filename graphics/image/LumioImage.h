// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Metadata.h"
#include "graphics/Message.h"

#include <Magick++.h>

#include <QString>

#include <cstddef>
#include <exception>
#include <memory>
#include <string>

namespace grisal::graphics
{

class PictureFile;
class ReplacementFile;

/// A picture in memory, read from and written to an image file. The only place that touches image files.
///
/// Pixels travel in interleaved buffers of the caller, rows from top to bottom without padding: R, G, B and, with the
/// alpha option, a fourth component; bytes, or 16-bit words in machine order. Taken out as words, bytes b that were put
/// in come back as b << 8. Files of an 8-bit picture hold the very bytes that were put in.
///
/// Copies share their pixels until one of them changes.
///
/// No operation throws. Where one fails, it returns false, problem() tells why in the library's words, and the
/// picture held before is still there. Nothing is written to the log here.
class LumioImage
{
public:
    /// An empty picture: isNull().
    LumioImage();
    /// A black picture of the given size and depth: 16 bits a channel, or 8. It takes memory only when it is used;
    /// where there is none, that operation fails. isNull() where there is no such size.
    LumioImage(int width, int height, bool sixteenBit);

    /// Reads a JPEG, PNG or TIFF file, whatever its name, and of several pictures in it the first, turned upright as
    /// the file tells, and keeps what the file says about it. The picture is replaced only when the new one is good. A
    /// file that the library could read only in part, with a warning, counts as good; warning() then tells what it
    /// said. What PictureFile turns away is not given to the library at all.
    bool read(const QString &path);

    /// Writes the picture, without alpha, as true colour of its own depth, 8 or 16 bits a channel (JPEG always 8);
    /// the format follows from the extension of `path`, .jpg, .jpeg, .png, .tif or .tiff. `quality` is 0..100. An
    /// existing file is replaced as ReplacementFile does it: at once, and only by a whole one. True only if the file
    /// can be opened for reading afterwards. The file also says what is known about the picture; where not all of that
    /// fits in, warning() tells and the picture is saved all the same. A null picture is reported on standard output.
    bool save(const QString &path, int quality);

    /// From now on the files that are written say about this picture what the file of `source` said about that one.
    void takeMetadataOf(const LumioImage &source) { m_metadata = source.m_metadata; }

    bool isNull() const;
    /// Whether the depth is 16 bits a channel. A file of more than 8 bits counts as 16.
    bool is16Bit() const;
    int width() const;
    int height() const;

    /// Copies all pixels out into width * height * (3 or 4) components. Makes the picture true colour. The fourth
    /// component is the library's opacity, of which bytes take the low half. False, with the buffer undefined, where
    /// the library fails.
    bool getPixels(void *buffer, bool alpha, bool sixteenBit);

    /// Copies all pixels in from such a buffer; one without alpha may be roomForPixels(). Makes the picture true
    /// colour.
    bool setPixels(const void *buffer, bool alpha, bool sixteenBit);

    /// A buffer for the pixels of this picture, without alpha, in the very memory that the picture will keep them in;
    /// null where the library fails. Whatever the picture shows is gone: it is black until setPixels() takes the buffer
    /// over. The buffer lives until then, or until pixels are got or packed, or the picture is read or saved.
    void *roomForPixels();

    /// From now on the pixels are kept as getPixels() gives them, without alpha, in the picture's own depth: 3 or 6
    /// bytes for each, where the library takes 8. The picture is what those bytes or words say, and true colour; of
    /// what the library knew of the file it keeps what info() tells. False, with all as it was, where that fails.
    bool pack();
    /// The packed pixels, until they are set or an operation needs them in the library's memory, as saving and alpha
    /// do; null while the picture is not packed.
    const void *packedPixels() const { return m_packed.get(); }

    /// A description for the log, several lines.
    std::string info() const;

    /// Why the last operation failed; empty if it did not.
    QString problem() const { return m_problem; }
    /// What the library complained about in the last operation although it gave a result; else empty.
    QString warning() const { return m_warning.english(); }
    /// The same in the user's language, except for the library's own words.
    QString translatedWarning() const { return m_warning.translated(); }

private:
    template <typename Step>
    bool attempt(Step step)
    {
        m_problem.clear();
        m_warning = {};
        try {
            step();
        } catch (const std::exception &exception) {
            m_problem = QString::fromLocal8Bit(exception.what());
            return false;
        }
        return m_problem.isEmpty();
    }
    template <typename Step>
    bool attemptWithPixels(Step step);
    void readFrom(const PictureFile &file, const QString &path);
    bool prepareForWriting();
    std::size_t pixelCount() const;
    bool hasLibraryPixels() const;
    void forgetLibraryPixels();
    Magick::PixelPacket *libraryPixels();
    bool fill();
    bool putIn(const void *buffer, bool alpha, bool sixteenBit);
    bool takeOut(void *buffer, bool alpha, bool sixteenBit);
    void writeTo(ReplacementFile &target, const QString &path, int quality);
    Message writePixels(const std::string &name);
    void writeMetadata(const OpenFile &file, PictureFormat format, const std::string &name);
    void nameInMessages(int descriptor, const QString &path);

    /// Where the library's samples come from.
    enum class Samples {
        AsRead,    ///< from a file, or words that were put in
        FromBytes, ///< bytes b that were put in: they stand there as b * 257, and as words b << 8 is told
        Blank,     ///< nobody has put any in; the library has none yet
        Room,      ///< nobody has put any in; the library's memory is lent as a buffer
        Packed,    ///< they are in m_packed; the library has none
    };

    Magick::Image m_image;
    Samples m_samples = Samples::AsRead;
    std::shared_ptr<const std::byte[]> m_packed;
    Metadata m_metadata;
    QString m_problem;
    Message m_warning;
};

} // namespace grisal::graphics
