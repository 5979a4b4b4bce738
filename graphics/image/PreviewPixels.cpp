// SPDX-License-Identifier: MIT
#include "graphics/image/PreviewPixels.h"

#include "graphics/image/Bands.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr std::size_t rgb = 3;
constexpr std::size_t smallestBand = 128; // rows

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

/// Halves the top left width x height pixels of a picture whose rows are `fullWidth` pixels long.
template <typename Component, std::size_t components>
std::vector<Component> halfSize(const Component *pixels, int fullWidth, int width, int height)
{
    const std::size_t halfWidth = length(halfSide(width));
    const std::size_t halfHeight = length(halfSide(height));
    const std::size_t row = length(fullWidth) * components;
    // A side of 1 has no neighbour: there each pixel counts twice.
    const std::size_t right = width > 1 ? components : 0;
    const std::size_t below = height > 1 ? row : 0;

    std::vector<Component> half(halfWidth * halfHeight * rgb);
    inBands(halfHeight, smallestBand, [&](std::size_t first, std::size_t end) {
        Component *target = half.data() + first * halfWidth * rgb;
        for (std::size_t y = first; y < end; ++y) {
            const Component *upper = pixels + 2 * y * row;
            const Component *lower = upper + below;
            for (std::size_t x = 0; x < halfWidth; ++x, upper += 2 * components, lower += 2 * components) {
                for (std::size_t c = 0; c < rgb; ++c) {
                    const std::uint32_t sum = std::uint32_t{upper[c]} + upper[c + right] + lower[c] + lower[c + right];
                    *target++ = static_cast<Component>((sum + 2) / 4);
                }
            }
        }
    });
    return half;
}

/// The top left pixels, halved at once where they are too many: a copy in full size would be thrown away.
template <typename Component>
std::vector<Component> firstPixels(const void *pixels, int fullWidth, const PreviewPixels &size, bool tooLarge,
                                   bool alpha)
{
    const auto *source = static_cast<const Component *>(pixels);
    if (!tooLarge) {
        return topLeft<Component>(pixels, fullWidth, size.width, size.height, alpha ? rgb + 1 : rgb);
    }
    return alpha ? halfSize<Component, rgb + 1>(source, fullWidth, size.width, size.height)
                 : halfSize<Component, rgb>(source, fullWidth, size.width, size.height);
}

bool isTooLarge(const PreviewPixels &pixels)
{
    return std::max(pixels.width, pixels.height) > maxPreviewSide;
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
    const bool tooLarge = isTooLarge(preview);
    if (sixteenBit) {
        preview.words = firstPixels<std::uint16_t>(pixels, width, preview, tooLarge, alpha);
    } else {
        preview.bytes = firstPixels<std::uint8_t>(pixels, width, preview, tooLarge, alpha);
    }
    if (tooLarge) {
        preview.width = halfSide(preview.width);
        preview.height = halfSide(preview.height);
    }
    while (isTooLarge(preview)) {
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
        half.bytes = halfSize<std::uint8_t, rgb>(pixels.bytes.data(), pixels.width, pixels.width, pixels.height);
    } else {
        half.words = halfSize<std::uint16_t, rgb>(pixels.words.data(), pixels.width, pixels.width, pixels.height);
    }
    return half;
}

} // namespace grisal::graphics
