// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

namespace grisal::graphics
{

/// The components of a pixel in an Image: R, G, B.
constexpr std::size_t rgbComponents = 3;

/// An image of 8-bit or 16-bit samples, which it owns: interleaved R, G, B, rows from top to bottom without padding.
template <typename Sample>
struct Raster {
    Raster() = default;
    /// A black image of that size in pixels.
    Raster(int imageWidth, int imageHeight)
        : width(imageWidth), height(imageHeight), samples(pixelCount() * rgbComponents)
    {
    }

    std::size_t pixelCount() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(height); }

    int width = 0;  ///< in pixels
    int height = 0; ///< in pixels
    std::vector<Sample> samples;
};

using Image8 = Raster<std::uint8_t>;
using Image16 = Raster<std::uint16_t>;

/// An image at the depth of its file.
using Image = std::variant<Image8, Image16>;

inline bool is16Bit(const Image &image)
{
    return std::holds_alternative<Image16>(image);
}

/// The image with 8 bits a sample: the high byte of each.
Image8 highBytes(const Image16 &image);

} // namespace grisal::graphics
