// SPDX-License-Identifier: MIT
#include "graphics/files/ImageLibrary.h"
#include "graphics/files/LumioImage.h"
#include "graphics/files/QuantumCopy.h"

namespace grisal::graphics
{

namespace
{

Magick::Image emptyImage()
{
    initializeImageLibrary(nullptr);
    return {};
}

/// A picture whose pixels the library has no memory for yet.
Magick::Image imageWithoutPixels(std::size_t width, std::size_t height, unsigned depth)
{
    Magick::Image image = emptyImage();
    image.image()->columns = width;
    image.image()->rows = height;
    image.depth(depth);
    return image;
}

} // namespace

LumioImage::LumioImage() : m_image(emptyImage()) {}

LumioImage::LumioImage(int width, int height, bool sixteenBit) : LumioImage()
{
    if (width < 1 || height < 1) {
        m_problem = QStringLiteral("A picture cannot be %1 x %2 pixels large").arg(width).arg(height);
        return;
    }
    attempt([&] {
        m_image =
            imageWithoutPixels(static_cast<std::size_t>(width), static_cast<std::size_t>(height), sixteenBit ? 16 : 8);
        m_samples = Samples::Blank;
    });
}

template <typename Step>
bool LumioImage::attemptWithPixels(Step step)
{
    return attempt([&] {
        if (isNull()) {
            m_problem = QStringLiteral("Image is not valid");
            return;
        }
        if (!hasLibraryPixels()) {
            forgetLibraryPixels();
        }
        m_image.modifyImage();
        m_image.type(Magick::TrueColorType);
        if (!step(pixelCount())) {
            m_problem = QStringLiteral("The pixels cannot be reached");
        }
    });
}

std::size_t LumioImage::pixelCount() const
{
    return std::size_t{m_image.columns()} * m_image.rows();
}

bool LumioImage::hasLibraryPixels() const
{
    return m_samples != Samples::Blank && m_samples != Samples::Packed;
}

// A new one also where there were none: the library cannot part copies that share pixels which are not there.
void LumioImage::forgetLibraryPixels()
{
    const std::string name = m_image.fileName();
    const Magick::RenderingIntent intent = m_image.renderingIntent();
    m_image = imageWithoutPixels(m_image.columns(), m_image.rows(), m_image.depth());
    m_image.fileName(name);
    m_image.renderingIntent(intent);
    m_image.type(Magick::TrueColorType);
}

Magick::PixelPacket *LumioImage::libraryPixels()
{
    return m_image.setPixels(0, 0, m_image.columns(), m_image.rows());
}

// Only true colour pictures are written with the depth asked for: the library gives grey and palette pictures as few
// or as many bits as it likes. And a picture that was read from a JPEG would go into a TIFF by JPEG compression.
bool LumioImage::prepareForWriting()
{
    return attemptWithPixels([&](std::size_t count) {
        m_image.compressType(Magick::UndefinedCompression);
        if (is16Bit() || m_samples != Samples::AsRead) {
            return fill();
        }
        Magick::PixelPacket *pixels = m_image.getPixels(0, 0, m_image.columns(), m_image.rows());
        if (pixels != nullptr) {
            spreadBytes(pixels, count);
            m_image.syncPixels();
        }
        return pixels != nullptr;
    });
}

// The memory for the library's pixels is taken when it is needed: mostly there are new ones before anybody looks.
bool LumioImage::fill()
{
    if (m_samples == Samples::Blank || m_samples == Samples::Room) {
        m_image.backgroundColor(Magick::ColorRGB(0, 0, 0));
        m_image.erase();
        m_samples = Samples::FromBytes;
    } else if (m_samples == Samples::Packed) {
        const std::shared_ptr<const std::byte[]> packed = m_packed;
        return putIn(packed.get(), false, is16Bit());
    }
    return true;
}

bool LumioImage::putIn(const void *buffer, bool alpha, bool sixteenBit)
{
    Magick::PixelPacket *pixels = libraryPixels();
    if (pixels == nullptr) {
        return false;
    }
    if (sixteenBit) {
        copyWordsIn(static_cast<const std::uint16_t *>(buffer), pixelCount(), pixels, alpha);
    } else {
        copyBytesIn(static_cast<const std::uint8_t *>(buffer), pixelCount(), pixels, alpha);
    }
    m_image.syncPixels();
    m_samples = sixteenBit ? Samples::AsRead : Samples::FromBytes;
    m_packed.reset();
    return true;
}

bool LumioImage::takeOut(void *buffer, bool alpha, bool sixteenBit)
{
    const Magick::PixelPacket *pixels =
        fill() ? m_image.getConstPixels(0, 0, m_image.columns(), m_image.rows()) : nullptr;
    if (pixels == nullptr) {
        return false;
    }
    if (!sixteenBit) {
        copyBytesOut(pixels, pixelCount(), static_cast<std::uint8_t *>(buffer), alpha);
        return true;
    }
    auto *words = static_cast<std::uint16_t *>(buffer);
    copyWordsOut(pixels, pixelCount(), words, alpha);
    if (m_samples == Samples::FromBytes) {
        keepHighBytes(words, pixelCount(), alpha);
    }
    return true;
}

bool LumioImage::getPixels(void *buffer, bool alpha, bool sixteenBit)
{
    if (m_samples == Samples::Packed && !alpha) {
        return attempt([&] { unpack(m_packed.get(), is16Bit(), pixelCount() * 3, buffer, sixteenBit); });
    }
    return attemptWithPixels([&](std::size_t) { return takeOut(buffer, alpha, sixteenBit); });
}

bool LumioImage::setPixels(const void *buffer, bool alpha, bool sixteenBit)
{
    return attemptWithPixels([&](std::size_t) { return putIn(buffer, alpha, sixteenBit); });
}

void *LumioImage::roomForPixels()
{
    void *room = nullptr;
    attemptWithPixels([&](std::size_t) {
        room = libraryPixels();
        if (room != nullptr) {
            m_samples = Samples::Room;
            m_packed.reset();
        }
        return room != nullptr;
    });
    return room;
}

bool LumioImage::pack()
{
    return m_samples == Samples::Packed || attemptWithPixels([&](std::size_t count) {
               const std::size_t size = count * 3 * (is16Bit() ? sizeof(std::uint16_t) : sizeof(std::uint8_t));
               std::shared_ptr<std::byte[]> packed = std::make_shared_for_overwrite<std::byte[]>(size);
               if (!takeOut(packed.get(), false, is16Bit())) {
                   return false;
               }
               m_packed = packed;
               m_samples = Samples::Packed;
               forgetLibraryPixels();
               return true;
           });
}

} // namespace grisal::graphics
