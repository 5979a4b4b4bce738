// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <string>

namespace grisal::graphics
{

/// A picture in memory, read from and written to an image file.
///
/// Pixels travel in interleaved buffers of the caller, rows from top to bottom without padding: R, G, B and, with the
/// alpha option, a fourth component; bytes, or 16-bit words in machine order. Taken out as words, bytes b that were put
/// in come back as b << 8. Files of an 8-bit picture hold the very bytes that were put in.
///
/// No operation but copy() and blank() throws. Where one fails, it returns false, problem() tells why in the library's
/// words, and the picture held before is still there. Nothing is written to the log here.
class IPicture
{
public:
    virtual ~IPicture() = default;

    /// The same picture once more. Copies share their pixels until one of them changes.
    virtual std::unique_ptr<IPicture> copy() const = 0;

    /// A black picture of the same size and depth. Its files say about it what the file of this one said. It takes
    /// memory only when it is used.
    virtual std::unique_ptr<IPicture> blank() const = 0;

    /// Reads a JPEG, PNG or TIFF file, whatever its name, and of several pictures in it the first, turned upright as
    /// the file tells, and keeps what the file says about it. The picture is replaced only when the new one is good. A
    /// file that the library could read only in part, with a warning, counts as good; warning() then tells what it
    /// said.
    virtual bool read(const QString &path) = 0;

    /// Writes the picture, without alpha, as true colour of its own depth, 8 or 16 bits a channel (JPEG always 8);
    /// the format follows from the extension of `path`, .jpg, .jpeg, .png, .tif or .tiff. `quality` is 0..100. An
    /// existing file is replaced at once, and only by a whole one. True only if the file can be opened for reading
    /// afterwards. The file also says what is known about the picture; where not all of that fits in, warning() tells
    /// and the picture is saved all the same. A null picture is reported on standard output.
    virtual bool save(const QString &path, int quality) = 0;

    virtual bool isNull() const = 0;
    /// Whether the depth is 16 bits a channel. A file of more than 8 bits counts as 16.
    virtual bool is16Bit() const = 0;
    virtual int width() const = 0;
    virtual int height() const = 0;

    /// Copies all pixels out into width * height * (3 or 4) components. Makes the picture true colour. The fourth
    /// component is the library's opacity, of which bytes take the low half. False, with the buffer undefined, where
    /// the library fails.
    virtual bool getPixels(void *buffer, bool alpha, bool sixteenBit) = 0;

    /// Copies all pixels in from such a buffer; one without alpha may be roomForPixels(). Makes the picture true
    /// colour.
    virtual bool setPixels(const void *buffer, bool alpha, bool sixteenBit) = 0;

    /// A buffer for the pixels of this picture, without alpha, in the very memory that the picture will keep them in;
    /// null where the library fails. Whatever the picture shows is gone: it is black until setPixels() takes the buffer
    /// over. The buffer lives until then, or until pixels are got or packed, or the picture is read or saved.
    virtual void *roomForPixels() = 0;

    /// From now on the pixels are kept as getPixels() gives them, without alpha, in the picture's own depth: 3 or 6
    /// bytes for each, where the library takes 8. The picture is what those bytes or words say, and true colour; of
    /// what the library knew of the file it keeps what info() tells. False, with all as it was, where that fails.
    virtual bool pack() = 0;
    /// The packed pixels, until they are set or an operation needs them in the library's memory, as saving and alpha
    /// do; null while the picture is not packed.
    virtual const void *packedPixels() const = 0;

    /// A description for the log, several lines.
    virtual std::string info() const = 0;

    /// Why the last operation failed; empty if it did not.
    virtual QString problem() const = 0;
    /// What the library complained about in the last operation although it gave a result; else empty.
    virtual QString warning() const = 0;
    /// The same in the user's language, except for the library's own words.
    virtual QString translatedWarning() const = 0;

protected:
    IPicture() = default;
    IPicture(const IPicture &) = default;
    IPicture &operator=(const IPicture &) = default;
};

/// Makes an empty picture; null where the program has no part for image files.
using PictureMaker = std::function<std::unique_ptr<IPicture>()>;

} // namespace grisal::graphics
