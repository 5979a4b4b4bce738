// SPDX-License-Identifier: MIT
#include "graphics/image/PreviewPixels.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr std::size_t rgb = 3;

std::size_t length(int side)
{
    return static_cast<std::size_t>(side);
}

template <typename Component>
std::vector<Component> topLeft(const void *pixels, int fullWidth, int width, int height, std::size_t components)
{
    const auto *source = static_cast<const Component *>(pixels);
    std::vector<Component> copy(length(width) * length(height) * rgb);
    auto target = copy.begin();
    for (std::size_t y = 0; y < length(height); ++y) {
        const Component *pixel = source + y * length(fullWidth) * components;
        for (std::size_t x = 0; x < length(width); ++x, pixel += components) {
            target = std::copy_n(pixel, rgb, target);
        }
    }
    return copy;
}

int halfSide(int side)
{
    return std::max(1, side / 2);
}

template <typename Component>
std::vector<Component> halfSize(const std::vector<Component> &pixels, int width, int height)
{
    const std::size_t halfWidth = length(halfSide(width));
    const std::size_t halfHeight = length(halfSide(height));
    const std::size_t row = length(width) * rgb;
    // A side of 1 has no neighbour: there each pixel counts twice.
    const std::size_t right = width > 1 ? rgb : 0;
    const std::size_t below = height > 1 ? row : 0;

    std::vector<Component> half(halfWidth * halfHeight * rgb);
    for (std::size_t y = 0; y < halfHeight; ++y) {
        for (std::size_t i = 0; i < halfWidth * rgb; ++i) {
            const std::size_t at = 2 * y * row + 2 * (i / rgb) * rgb + i % rgb;
            const std::uint32_t sum =
                std::uint32_t{pixels[at]} + pixels[at + right] + pixels[at + below] + pixels[at + below + right];
            half[y * halfWidth * rgb + i] = static_cast<Component>((sum + 2) / 4);
        }
    }
    return half;
}

} // namespace

const void *PreviewPixels::data() const
{
    if (!words.empty()) {
        return words.data();
    }
    return bytes.empty() ? nullptr : bytes.data();
}

int roundedPreviewSide(int side)
{
    return side < 4 ? side : side - side % 4;
}

PreviewPixels makePreviewPixels(const void *pixels, int width, int height, bool sixteenBit, bool alpha)
{
    PreviewPixels preview;
    if (!pixels || width < 1 || height < 1) {
        return preview;
    }
    preview.width = roundedPreviewSide(width);
    preview.height = roundedPreviewSide(height);
    const std::size_t components = alpha ? rgb + 1 : rgb;
    if (sixteenBit) {
        preview.words = topLeft<std::uint16_t>(pixels, width, preview.width, preview.height, components);
    } else {
        preview.bytes = topLeft<std::uint8_t>(pixels, width, preview.width, preview.height, components);
    }
    while (std::max(preview.width, preview.height) > maxPreviewSide) {
        preview = halved(preview);
    }
    return preview;
}

PreviewPixels halved(const PreviewPixels &pixels)
{
    if (!pixels.data()) {
        return {};
    }
    PreviewPixels half;
    half.width = halfSide(pixels.width);
    half.height = halfSide(pixels.height);
    if (pixels.words.empty()) {
        half.bytes = halfSize(pixels.bytes, pixels.width, pixels.height);
    } else {
        half.words = halfSize(pixels.words, pixels.width, pixels.height);
    }
    return half;
}

} // namespace grisal::graphics
