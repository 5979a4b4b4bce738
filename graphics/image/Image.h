// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

namespace grisal::graphics
{

/// The numbers of components of a pixel: R, G, B, and the same with alpha.
constexpr int rgbComponents = 3;
constexpr int rgbaComponents = 4;

/// An image of 8-bit or 16-bit samples, which it owns: interleaved R, G, B and, with four components, alpha; rows from
/// top to bottom without padding.
template <typename Sample>
struct Raster {
    Raster() = default;
    /// An image of the given size in pixels; all samples, including alpha, have the value `fill`.
    Raster(int imageWidth, int imageHeight, int imageComponents = rgbComponents, Sample fill = 0)
        : width(imageWidth), height(imageHeight), components(imageComponents),
          samples(pixelCount() * static_cast<std::size_t>(imageComponents), fill)
    {
    }

    std::size_t pixelCount() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(height); }

    int width = 0;                  ///< in pixels
    int height = 0;                 ///< in pixels
    int components = rgbComponents; ///< of a pixel: rgbComponents or rgbaComponents
    std::vector<Sample> samples;
};

using Image8 = Raster<std::uint8_t>;
using Image16 = Raster<std::uint16_t>;

/// An image with the bit depth of its file.
using Image = std::variant<Image8, Image16>;

inline bool is16Bit(const Image &image)
{
    return std::holds_alternative<Image16>(image);
}

inline int widthOf(const Image &image)
{
    return std::visit([](const auto &raster) { return raster.width; }, image);
}

inline int heightOf(const Image &image)
{
    return std::visit([](const auto &raster) { return raster.height; }, image);
}

/// Whether there are no pixels.
inline bool isEmpty(const Image &image)
{
    return std::visit([](const auto &raster) { return raster.samples.empty(); }, image);
}

inline bool hasAlpha(const Image &image)
{
    return std::visit([](const auto &raster) { return raster.components == rgbaComponents; }, image);
}

/// Returns the image with 8-bit samples, the high bytes of its 16-bit samples.
Image8 highBytes(const Image16 &image);

} // namespace grisal::graphics
