// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

namespace grisal::graphics
{

/// The number of components of a pixel in an Image: R, G, B.
constexpr std::size_t rgbComponents = 3;

/// An image of 8-bit or 16-bit samples, which it owns: interleaved R, G, B, rows from top to bottom without padding.
template <typename Sample>
struct Raster {
    Raster() = default;
    /// A black image of the given size in pixels.
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

/// An image with the bit depth of its file.
using Image = std::variant<Image8, Image16>;

inline bool is16Bit(const Image &image)
{
    return std::holds_alternative<Image16>(image);
}

/// Returns the image with 8-bit samples, the high bytes of its 16-bit samples.
Image8 highBytes(const Image16 &image);

} // namespace grisal::graphics
