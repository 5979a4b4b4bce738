// SPDX-License-Identifier: MIT
#include "tests/graphics/files/PictureFiles.h"

#include "graphics/files/ImageLibrary.h"

#include <QFile>
#include <QtEndian>

#include <cstddef>
#include <numeric>

namespace grisal::test
{

namespace
{

constexpr std::size_t rgb = 3;

std::size_t componentsOf(const graphics::LumioImage &image)
{
    return static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()) * rgb;
}

constexpr quint16 tiffBitsPerSample = 258;
constexpr quint16 tiffSamplesPerPixel = 277;

// The first value of a tag of 16-bit numbers in the first directory of a little-endian TIFF file.
int tiffValue(const QByteArray &file, quint16 wanted)
{
    const auto number16 = [&](qsizetype at) { return int{qFromLittleEndian<quint16>(file.constData() + at)}; };
    const auto offset = [&](qsizetype at) { return qsizetype{qFromLittleEndian<quint32>(file.constData() + at)}; };
    constexpr qsizetype entrySize = 12;
    const qsizetype directory = offset(4);
    for (qsizetype i = 0; i < number16(directory); ++i) {
        const qsizetype entry = directory + 2 + i * entrySize;
        if (number16(entry) == wanted) {
            const bool inPlace = offset(entry + 4) <= 2;
            return number16(inPlace ? entry + 8 : offset(entry + 8));
        }
    }
    return 1; // the default of both tags
}

} // namespace

Magick::Image painted(int width, int height, int depth, const Painter &painter)
{
    graphics::initializeImageLibrary(nullptr);
    Magick::Image image(Magick::Geometry(static_cast<unsigned>(width), static_cast<unsigned>(height)),
                        Magick::Color(0, 0, 0));
    image.type(Magick::TrueColorType);
    image.depth(static_cast<unsigned>(depth));
    Magick::PixelPacket *pixel = image.getPixels(0, 0, image.columns(), image.rows());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x, ++pixel) {
            const Samples samples = painter(x, y);
            pixel->red = samples[0];
            pixel->green = samples[1];
            pixel->blue = samples[2];
            pixel->opacity = 0;
        }
    }
    image.syncPixels();
    return image;
}

Samples16 samplesOf(const QString &path)
{
    Magick::Image image;
    image.read(QFile::encodeName(path).toStdString());
    const Magick::PixelPacket *pixel = image.getConstPixels(0, 0, image.columns(), image.rows());
    Samples16 samples;
    for (std::size_t i = 0; i < std::size_t{image.columns()} * image.rows(); ++i, ++pixel) {
        samples.insert(samples.end(), {pixel->red, pixel->green, pixel->blue});
    }
    return samples;
}

int bitsPerChannel(const QString &path)
{
    const QByteArray file = contentsOf(path);
    if (file.startsWith("\x89PNG")) {
        return file.at(24);
    }
    return file.startsWith("II*") ? tiffValue(file, tiffBitsPerSample) : 0;
}

int channelsPerPixel(const QString &path)
{
    const QByteArray file = contentsOf(path);
    if (file.startsWith("\x89PNG")) {
        constexpr std::array channels{1, 0, 3, 1, 2, 0, 4}; // by PNG colour type
        return channels.at(static_cast<std::size_t>(file.at(25)));
    }
    return file.startsWith("II*") ? tiffValue(file, tiffSamplesPerPixel) : 0;
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(contents);
    }
}

Bytes countedBytes(std::size_t count)
{
    Bytes bytes(count);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
    return bytes;
}

Samples16 spread(const Bytes &bytes)
{
    Samples16 samples16;
    for (const std::uint8_t byte : bytes) {
        samples16.push_back(static_cast<std::uint16_t>(byte * 257));
    }
    return samples16;
}

graphics::LumioImage pictureOf(const Bytes &bytes, int width, int height)
{
    graphics::LumioImage image(width, height, false);
    image.setPixels(bytes.data(), false, false);
    return image;
}

graphics::LumioImage pictureOf(const Samples16 &samples, int width, int height)
{
    graphics::LumioImage image(width, height, true);
    image.setPixels(samples.data(), false, true);
    return image;
}

Bytes bytesOf(graphics::LumioImage &image)
{
    Bytes bytes(componentsOf(image));
    image.getPixels(bytes.data(), false, false);
    return bytes;
}

Samples16 samples16Of(graphics::LumioImage &image)
{
    Samples16 samples(componentsOf(image));
    image.getPixels(samples.data(), false, true);
    return samples;
}

} // namespace grisal::test
