// SPDX-License-Identifier: MIT
#include "graphics/files/ImageConversion.h"

#include <stdexcept>
#include <variant>

namespace grisal::graphics
{

namespace
{

template <typename Sample>
Image rasterOf(LumioImage &file)
{
    Raster<Sample> image(file.width(), file.height());
    if (!file.getPixels(image.samples.data(), false, file.is16Bit())) {
        throw std::runtime_error(file.problem().english().toStdString());
    }
    return image;
}

} // namespace

Image imageOf(LumioImage &file)
{
    return file.is16Bit() ? rasterOf<std::uint16_t>(file) : rasterOf<std::uint8_t>(file);
}

LumioImage fileOf(const Image &image)
{
    const bool sixteenBit = is16Bit(image);
    return std::visit(
        [=](const auto &raster) {
            LumioImage file(raster.width, raster.height, sixteenBit);
            if (file.problem().isEmpty()) {
                file.setPixels(raster.samples.data(), false, sixteenBit);
            }
            return file;
        },
        image);
}

} // namespace grisal::graphics
