// SPDX-License-Identifier: MIT
#include "graphics/files/LumioImage.h"

#include "graphics/ControlCharacters.h"
#include "graphics/files/ImageFile.h"
#include "graphics/files/ImageLibrary.h"
#include "graphics/files/ImageNames.h"
#include "graphics/files/Orientation.h"
#include "graphics/files/QuantumCopy.h"
#include "graphics/files/ReplacementFile.h"
#include "graphics/files/TiffDocumentName.h"

#include <QFile>

#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>

namespace grisal::graphics
{

namespace
{

bool opensForReading(const QString &path)
{
    return std::ifstream(QFile::encodeName(path).toStdString()).is_open();
}

/// To be read into: only the first image of a file that contains several.
Magick::Image firstImage()
{
    Magick::Image image;
    image.subImage(0);
    image.subRange(1);
    return image;
}

Magick::ImageType typeOf(const Magick::Image &image)
{
    try {
        return image.type();
    } catch (const std::exception &) {
        return Magick::UndefinedType; // the pixels cannot be accessed
    }
}

// After a warning the result of the call is valid.
template <typename Call>
Message warningOf(Call call)
{
    try {
        call();
    } catch (const Magick::Warning &warning) {
        return Message::quoting(QString::fromLocal8Bit(warning.what()));
    }
    return {};
}

/// Whether a file that was just written could be opened again.
bool opensAsImage(const OpenFile &written)
{
    const ImageFile file(QString::fromStdString(pathOfOpenFile(written.descriptor())));
    if (!file.problem().isEmpty()) {
        return false;
    }
    try {
        Magick::Image head = firstImage();
        warningOf([&] { head.ping(file.name()); });
        return head.columns() > 0;
    } catch (const std::exception &) {
        return false;
    }
}

// A TIFF file may have 12 bits a channel.
void raiseDepth(Magick::Image &image)
{
    if (image.depth() > 8) {
        image.depth(16);
    }
}

Magick::Image emptyImage()
{
    initializeImageLibrary(nullptr);
    return {};
}

// Otherwise GraphicsMagick would write some of the metadata a second time.
void removeMetadata(Magick::Image &image)
{
    image.profile("*", Magick::Blob());
    image.orientation(Magick::UndefinedOrientation);
    MagickLib::DestroyImageAttributes(image.image());
}

/// Gives an image those attributes of a new one that influence how it is written, besides those that are set for every
/// file.
void resetAttributes(Magick::Image &image)
{
    const Magick::Image fresh(Magick::Geometry(1, 1), Magick::ColorRGB(0, 0, 0));
    const MagickLib::Image &from = *fresh.constImage();
    MagickLib::Image &to = *image.image();
    to.background_color = from.background_color;
    to.gamma = from.gamma;
    to.chromaticity = from.chromaticity;
    to.rendering_intent = from.rendering_intent;
    to.interlace = from.interlace;
    to.endian = from.endian;
    to.page = {to.columns, to.rows, 0, 0};
}

} // namespace

LumioImage::LumioImage() : m_image(emptyImage()) {}

LumioImage::LumioImage(int width, int height, bool sixteenBit) : LumioImage()
{
    if (width < 1 || height < 1) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "an image cannot have %1 pixels"),
                            QStringLiteral("%1 x %2").arg(width).arg(height));
        return;
    }
    attempt([&] {
        const Magick::Geometry size(static_cast<unsigned>(width), static_cast<unsigned>(height));
        Magick::Image black(size, Magick::ColorRGB(0, 0, 0));
        black.depth(sixteenBit ? 16 : 8);
        m_image = black;
    });
}

template <typename Step>
bool LumioImage::attemptWithPixels(Step step)
{
    return attempt([&] {
        if (isNull()) {
            m_problem = Message(QT_TRANSLATE_NOOP("Message", "the image is not valid"));
            return;
        }
        m_image.modifyImage();
        m_image.type(Magick::TrueColorType);
        Magick::PixelPacket *pixels = m_image.getPixels(0, 0, m_image.columns(), m_image.rows());
        if (pixels == nullptr) {
            m_problem = Message(QT_TRANSLATE_NOOP("Message", "the pixels cannot be accessed"));
            return;
        }
        step(pixels, std::size_t{m_image.columns()} * m_image.rows());
        m_image.syncPixels();
    });
}

bool LumioImage::getPixels(void *buffer, bool alpha, bool sixteenBit)
{
    return attemptWithPixels([&](const Magick::PixelPacket *pixels, std::size_t count) {
        if (sixteenBit) {
            copySamples16Out(pixels, count, static_cast<std::uint16_t *>(buffer), alpha);
        } else {
            copySamples8Out(pixels, count, static_cast<std::uint8_t *>(buffer), alpha);
        }
    });
}

bool LumioImage::setPixels(const void *buffer, bool alpha, bool sixteenBit)
{
    m_highBytesAreSpread = false;
    return attemptWithPixels([&](Magick::PixelPacket *pixels, std::size_t count) {
        if (sixteenBit) {
            copySamples16In(static_cast<const std::uint16_t *>(buffer), count, pixels, alpha);
        } else {
            copySamples8In(static_cast<const std::uint8_t *>(buffer), count, pixels, alpha);
        }
    });
}

bool LumioImage::transformRows(const RowsTransform &transform)
{
    const bool good = attemptWithPixels([&](Magick::PixelPacket *pixels, std::size_t /*count*/) {
        transformPixelRows(pixels, width(), height(), is16Bit(), transform);
        resetAttributes(m_image);
    });
    m_highBytesAreSpread = good;
    return good;
}

// Only true colour images are written with the requested depth: GraphicsMagick chooses that of grey and palette images
// itself. And an image that was read from a JPEG would go into a TIFF with JPEG compression.
bool LumioImage::prepareForWriting()
{
    return attemptWithPixels([&](Magick::PixelPacket *pixels, std::size_t count) {
        m_image.compressType(Magick::UndefinedCompression);
        if (!is16Bit() && !m_highBytesAreSpread) {
            spreadHighBytes(pixels, count);
        }
    });
}

bool LumioImage::read(const QString &path)
{
    ImageFile file(path);
    return read(file);
}

bool LumioImage::read(ImageFile &file)
{
    const bool good = attempt([&] {
        m_problem = file.problem();
        if (m_problem.isEmpty()) {
            file.normalise();
            readFrom(file);
        }
    });
    replaceNameInMessages(file.descriptor(), file.path());
    return good;
}

// GraphicsMagick's messages contain the path of the open file, not the one that the user knows.
void LumioImage::replaceNameInMessages(int descriptor, const QString &path)
{
    const QString name = QString::fromStdString(pathOfOpenFile(descriptor));
    m_problem.replaceInDetail(name, path);
    m_warning.replaceInDetail(name, path);
}

void LumioImage::readFrom(const ImageFile &file)
{
    const ScopedPixelLimit limit(file.maxPixels());
    const Metadata metadata(file.file(), file.format());
    Magick::Image fresh = firstImage();
    m_warning = warningOf([&] { fresh.read(file.name()); });
    if (!fresh.isValid()) {
        m_problem =
            m_warning.isEmpty() ? Message(QT_TRANSLATE_NOOP("Message", "No picture in %1"), file.path()) : m_warning;
        return;
    }
    if (m_warning.isEmpty() && !metadata.isComplete()) {
        m_warning = Message(QT_TRANSLATE_NOOP("Message", "Some metadata in %1 could not be read"), file.path());
    }
    fresh.fileName(QFile::encodeName(file.path()).toStdString());
    raiseDepth(fresh);
    removeMetadata(fresh);
    normaliseOrientation(fresh, metadata.orientation());
    m_image = fresh;
    m_highBytesAreSpread = false;
    m_metadata = metadata;
}

bool LumioImage::save(const QString &path, int quality)
{
    if (isNull()) {
        std::cout << "save: Image is not valid" << std::endl;
    }
    if (!prepareForWriting()) {
        return false;
    }
    ReplacementFile target(path);
    const bool good = attempt([&] { writeTo(target, path, quality); });
    if (!good) {
        const Message shortage = target.shortageOfSpace();
        m_problem = shortage.isEmpty() ? m_problem : shortage;
    }
    replaceNameInMessages(target.file().descriptor(), path);
    return good;
}

void LumioImage::writeTo(ReplacementFile &target, const QString &path, int quality)
{
    const std::optional<ImageFormat> format = formatOfName(path);
    if (!format) {
        m_problem = unknownExtension();
        return;
    }
    m_problem = target.problem();
    if (!m_problem.isEmpty()) {
        return;
    }
    m_image.matte(false);
    m_image.quality(static_cast<unsigned>(quality));
    m_warning = writePixels(target.file(), *format);
    if (!m_metadata.isEmpty()) {
        writeMetadata(target.file(), *format);
    }
    m_image.fileName(QFile::encodeName(path).toStdString());
    if (!hasCompleteEnd(target.file(), *format)) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "not all of the picture could be written"));
    } else if (!target.commit()) {
        m_problem = target.problem();
    } else if (!opensForReading(path)) {
        m_problem = Message(QT_TRANSLATE_NOOP("Message", "%1 cannot be read after it was written"), path);
    }
}

Message LumioImage::writePixels(const OpenFile &file, ImageFormat format)
{
    // Left from writing a PNG before; GraphicsMagick would append to it and report that on standard error.
    MagickLib::SetImageAttribute(m_image.image(), "[png:bit-depth-written]", nullptr);
    // Left from writing a JPEG before: GraphicsMagick sets a default resolution.
    m_image.image()->x_resolution = 0;
    m_image.image()->y_resolution = 0;
    m_image.resolutionUnits(Magick::UndefinedResolution);
    // Optimised coding would save 3 to 10 percent of the size, more for smooth images, but takes longer than writing
    // itself and almost as much memory as the pixels.
    m_image.defineValue("jpeg", "optimize-coding", "false");
    Message warning = warningOf([&] { m_image.write(magickName(format, pathOfOpenFile(file.descriptor()))); });
    if (format == ImageFormat::Tiff) {
        removeDocumentName(file);
    }
    return warning;
}

// Invalid metadata from other programs may prevent GraphicsMagick from reading the file again: then it is left out.
void LumioImage::writeMetadata(const OpenFile &file, ImageFormat format)
{
    bool complete = m_metadata.writeInto(file, format, width(), height());
    if (!opensAsImage(file)) {
        writePixels(file, format);
        complete = false;
    }
    if (!complete && m_warning.isEmpty()) {
        m_warning = Message(QT_TRANSLATE_NOOP("Message", "Some metadata could not be saved"));
    }
}

bool LumioImage::isNull() const
{
    return !m_image.isValid();
}

bool LumioImage::is16Bit() const
{
    return m_image.depth() == 16;
}

int LumioImage::width() const
{
    return static_cast<int>(m_image.columns());
}

int LumioImage::height() const
{
    return static_cast<int>(m_image.rows());
}

std::string LumioImage::info() const
{
    const QString name = QFile::decodeName(m_image.fileName().c_str());
    std::ostringstream text;
    text << '\n'
         << " ******** LumioImage ******** \n"
         << "  filename:   " << QFile::encodeName(escapeControlCharacters(name)).toStdString() << '\n'
         << "  width :     " << m_image.columns() << '\n'
         << "  height:     " << m_image.rows() << '\n'
         << "  depth:      " << m_image.depth() << '\n'
         << "  colorspace: " << colorSpaceName(m_image.colorSpace()) << '\n'
         << "  intent:     " << renderingIntentName(m_image.renderingIntent()) << '\n'
         << "  type:       " << imageTypeName(typeOf(m_image)) << '\n'
         << "  quantize:   " << m_image.quantizeColors() << '\n'
         << " ************************* \n"
         << '\n';
    return text.str();
}

} // namespace grisal::graphics
