// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/LumioImage.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace grisal::test
{

using Samples16 = std::vector<std::uint16_t>;
using Bytes = std::vector<std::uint8_t>;

/// The red, green and blue sample of a pixel, 16 bits each.
using Samples = std::array<std::uint16_t, 3>;
using Painter = std::function<Samples(int x, int y)>;

/// GraphicsMagick's own image, made without LumioImage, for files that tests open.
Magick::Image painted(int width, int height, int depth, const Painter &painter);

/// The samples of a file as GraphicsMagick reads them, R, G, B per pixel, without LumioImage.
Samples16 samplesOf(const QString &path);

/// The depth of a PNG or TIFF file, from its own header: bits per channel. 0 if it is neither, or truncated.
int bitsPerChannel(const QString &path);

/// The channels per pixel of a PNG or TIFF file, from its own header; palettes count as one.
int channelsPerPixel(const QString &path);

QByteArray contentsOf(const QString &path);
void writeFile(const QString &path, const QByteArray &contents);

/// Bytes that count from 0 to 255 again and again.
Bytes countedBytes(std::size_t count);

/// The 16-bit samples of the same brightness as bytes.
Samples16 spread(const Bytes &bytes);

/// An image filled from `bytes` or `samples`, R, G, B per pixel.
graphics::LumioImage pictureOf(const Bytes &bytes, int width, int height);
graphics::LumioImage pictureOf(const Samples16 &samples, int width, int height);

/// All samples of an image, R, G, B.
Bytes bytesOf(graphics::LumioImage &image);
Samples16 samples16Of(graphics::LumioImage &image);

} // namespace grisal::test
