// SPDX-License-Identifier: MIT
#include "graphics/image/LumioImage.h"
#include "graphics/image/ImageNames.h"

#include <QFile>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace grisal::graphics
{

namespace
{

std::string encoded(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

bool opensForReading(const std::string &path)
{
    return std::ifstream(path).is_open();
}

// Opening a pipe that nobody writes to would wait for ever.
bool isSomethingElseThanAFile(const std::string &path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

Magick::Image emptyImage()
{
    initializeImageLibrary(nullptr);
    return {};
}

Magick::ImageType typeOf(const Magick::Image &image)
{
    try {
        return image.type();
    } catch (const std::exception &) {
        return Magick::UndefinedType; // the pixels cannot be reached
    }
}

// A warning leaves the result of the call standing, so the text is kept and all goes on.
template <typename Call>
QString warningOf(Call call)
{
    try {
        call();
    } catch (const Magick::Warning &warning) {
        return QString::fromLocal8Bit(warning.what());
    }
    return {};
}

// A TIFF may have 12 bits, say: more than a byte keeps.
void raiseDepth(Magick::Image &image)
{
    if (image.depth() > 8) {
        image.depth(16);
    }
}

constexpr int byteShift = 8;
constexpr Magick::Quantum byteSpread = 257;
constexpr Magick::Quantum defaultByteOpacity = 255;
constexpr Magick::Quantum defaultWordOpacity = 65535;

void copyBytesOut(const Magick::PixelPacket *pixel, std::size_t count, std::uint8_t *target, bool alpha)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel) {
        *target++ = static_cast<std::uint8_t>(pixel->red >> byteShift);
        *target++ = static_cast<std::uint8_t>(pixel->green >> byteShift);
        *target++ = static_cast<std::uint8_t>(pixel->blue >> byteShift);
        if (alpha) {
            *target++ = static_cast<std::uint8_t>(pixel->opacity);
        }
    }
}

void copyWordsOut(const Magick::PixelPacket *pixel, std::size_t count, std::uint16_t *target, bool alpha)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel) {
        *target++ = pixel->red;
        *target++ = pixel->green;
        *target++ = pixel->blue;
        if (alpha) {
            *target++ = pixel->opacity;
        }
    }
}

void copyBytesIn(Magick::PixelPacket *pixel, std::size_t count, const std::uint8_t *source, bool alpha)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel) {
        pixel->red = static_cast<Magick::Quantum>(*source++ << byteShift);
        pixel->green = static_cast<Magick::Quantum>(*source++ << byteShift);
        pixel->blue = static_cast<Magick::Quantum>(*source++ << byteShift);
        pixel->opacity = alpha ? *source++ : defaultByteOpacity;
    }
}

void copyWordsIn(Magick::PixelPacket *pixel, std::size_t count, const std::uint16_t *source, bool alpha)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel) {
        pixel->red = *source++;
        pixel->green = *source++;
        pixel->blue = *source++;
        pixel->opacity = alpha ? *source++ : defaultWordOpacity;
    }
}

Magick::Quantum spread(Magick::Quantum sample)
{
    return static_cast<Magick::Quantum>((sample >> byteShift) * byteSpread);
}

void spreadBytes(Magick::PixelPacket *pixel, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i, ++pixel) {
        pixel->red = spread(pixel->red);
        pixel->green = spread(pixel->green);
        pixel->blue = spread(pixel->blue);
    }
}

} // namespace

void initializeImageLibrary(const char *programPath)
{
    static bool initialized = false;
    if (initialized) {
        return;
    }
    MagickLib::ExceptionInfo exception;
    MagickLib::GetExceptionInfo(&exception);
    MagickLib::InitializeMagickEx(programPath, MAGICK_OPT_NO_SIGNAL_HANDER, &exception);
    MagickLib::DestroyExceptionInfo(&exception);
    Magick::InitializeMagick(programPath);
    initialized = true;
}

LumioImage::LumioImage() : m_image(emptyImage()) {}

LumioImage::LumioImage(int width, int height, bool sixteenBit) : LumioImage()
{
    if (width < 1 || height < 1) {
        m_problem = QStringLiteral("A picture cannot be %1 x %2 pixels large").arg(width).arg(height);
        return;
    }
    attempt([&] {
        const Magick::Geometry size(static_cast<unsigned>(width), static_cast<unsigned>(height));
        m_image = Magick::Image(size, Magick::Color());
        m_image.depth(sixteenBit ? 16 : 8);
    });
}

template <typename Step>
bool LumioImage::attempt(Step step)
{
    m_problem.clear();
    m_warning.clear();
    try {
        step();
    } catch (const std::exception &exception) {
        m_problem = QString::fromLocal8Bit(exception.what());
        return false;
    }
    return m_problem.isEmpty();
}

template <typename Step>
bool LumioImage::withTrueColorPixels(Step step)
{
    return attempt([&] {
        if (isNull()) {
            m_problem = QStringLiteral("Image is not valid");
            return;
        }
        m_image.modifyImage();
        m_image.type(Magick::TrueColorType);
        Magick::PixelPacket *pixels = m_image.getPixels(0, 0, m_image.columns(), m_image.rows());
        if (!pixels) {
            m_problem = QStringLiteral("The pixels cannot be reached");
            return;
        }
        step(pixels, std::size_t{m_image.columns()} * m_image.rows());
        m_image.syncPixels();
    });
}

bool LumioImage::read(const QString &path)
{
    const std::string file = encoded(path);
    if (isSomethingElseThanAFile(file) || !opensForReading(file)) {
        m_warning.clear();
        m_problem = QStringLiteral("Cannot open %1").arg(path);
        return false;
    }
    return attempt([&] {
        Magick::Image fresh;
        m_warning = warningOf([&] { fresh.read(file); });
        if (fresh.isValid()) {
            raiseDepth(fresh);
            m_image = fresh;
        } else {
            m_problem = m_warning.isEmpty() ? QStringLiteral("No picture in %1").arg(path) : m_warning;
        }
    });
}

bool LumioImage::save(const QString &path, int quality)
{
    if (isNull()) {
        std::cout << "save: Image is not valid" << std::endl;
    }
    if (!prepareForWriting()) {
        return false;
    }
    const std::string file = encoded(path);
    return attempt([&] {
        m_image.matte(false);
        m_image.quality(static_cast<unsigned>(quality));
        m_warning = warningOf([&] { m_image.write(file); });
        if (!opensForReading(file)) {
            m_problem = QStringLiteral("Cannot open %1 after writing it").arg(path);
        }
    });
}

// Only true colour pictures are written with the depth asked for: the library gives grey and palette pictures as few
// or as many bits as it likes. And a picture that was read from a JPEG would go into a TIFF by JPEG compression.
bool LumioImage::prepareForWriting()
{
    return withTrueColorPixels([&](Magick::PixelPacket *pixels, std::size_t count) {
        if (!is16Bit()) {
            spreadBytes(pixels, count);
        }
        m_image.compressType(Magick::UndefinedCompression);
        // Left by an earlier PNG; the library would add to it and complain on standard error.
        MagickLib::SetImageAttribute(m_image.image(), "[png:bit-depth-written]", nullptr);
    });
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

bool LumioImage::getPixels(void *buffer, bool alpha, bool sixteenBit)
{
    return withTrueColorPixels([&](const Magick::PixelPacket *pixels, std::size_t count) {
        if (sixteenBit) {
            copyWordsOut(pixels, count, static_cast<std::uint16_t *>(buffer), alpha);
        } else {
            copyBytesOut(pixels, count, static_cast<std::uint8_t *>(buffer), alpha);
        }
    });
}

bool LumioImage::setPixels(const void *buffer, bool alpha, bool sixteenBit)
{
    return withTrueColorPixels([&](Magick::PixelPacket *pixels, std::size_t count) {
        if (sixteenBit) {
            copyWordsIn(pixels, count, static_cast<const std::uint16_t *>(buffer), alpha);
        } else {
            copyBytesIn(pixels, count, static_cast<const std::uint8_t *>(buffer), alpha);
        }
    });
}

std::string LumioImage::info() const
{
    std::ostringstream text;
    text << '\n'
         << " ******** LumioImage ******** \n"
         << "  filename:   " << m_image.fileName() << '\n'
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
