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

template <typename Side>
Side halfSide(Side side)
{
    return std::max<Side>(1, side / 2);
}

/// Downscales the top left pixels of an image repeatedly by two. It works row by row, so that no intermediate image is
/// kept in memory as a whole.
template <typename Component, std::size_t components>
class Halves
{
public:
    /// The rows of the image are `fullWidth` pixels long; the first `width` pixels of each are used.
    Halves(const Component *pixels, int fullWidth, int width, int height)
        : m_pixels(pixels), m_row(length(fullWidth) * components)
    {
        m_sizes.push_back({length(width), length(height)});
    }

    std::vector<Component> afterHalvings(int halvings)
    {
        for (int i = 0; i < halvings; ++i) {
            m_sizes.push_back({halfSide(m_sizes.back().width), halfSide(m_sizes.back().height)});
        }
        const Size size = m_sizes.back();
        std::vector<Component> pixels(size.width * size.height * rgb);
        for (std::size_t y = 0; y < size.height; ++y) {
            makeRow(m_sizes.size() - 1, y, pixels.data() + y * size.width * rgb);
        }
        return pixels;
    }

private:
    struct Size {
        std::size_t width;
        std::size_t height;
    };

    /// Computes row y of the image that has been downscaled `halvings` times, at least once.
    void makeRow(std::size_t halvings, std::size_t y, Component *target) const
    {
        const Size whole = m_sizes[halvings - 1];
        const std::size_t below = whole.height > 1 ? 2 * y + 1 : y; // a single row is used twice
        if (halvings == 1) {
            join<components>(m_pixels + 2 * y * m_row, m_pixels + below * m_row, whole.width, target);
            return;
        }
        std::vector<Component> rows(2 * whole.width * rgb);
        Component *lower = rows.data() + whole.width * rgb;
        makeRow(halvings - 1, 2 * y, rows.data());
        makeRow(halvings - 1, below, lower);
        join<rgb>(rows.data(), lower, whole.width, target);
    }

    /// Downscales two rows of pixels with `step` components each to one row of half the width.
    template <std::size_t step>
    static void join(const Component *upper, const Component *lower, std::size_t width, Component *target)
    {
        const std::size_t right = width > 1 ? step : 0;
        for (std::size_t x = 0; x < halfSide(width); ++x, upper += 2 * step, lower += 2 * step) {
            for (std::size_t c = 0; c < rgb; ++c) {
                const std::uint32_t sum = std::uint32_t{upper[c]} + upper[c + right] + lower[c] + lower[c + right];
                *target++ = static_cast<Component>((sum + 2) / 4);
            }
        }
    }

    const Component *m_pixels;
    std::size_t m_row;
    std::vector<Size> m_sizes;
};

int halvingsOf(int width, int height)
{
    int halvings = 0;
    for (int side = std::max(width, height); side > maxPreviewSide; side /= 2) {
        ++halvings;
    }
    return halvings;
}

/// Returns the top left pixels, downscaled `halvings` times, with three components each.
template <typename Component>
std::vector<Component> firstPixels(const void *pixels, int fullWidth, const PreviewPixels &size, int halvings,
                                   bool alpha)
{
    const auto *source = static_cast<const Component *>(pixels);
    if (halvings == 0) {
        return topLeft<Component>(pixels, fullWidth, size.width, size.height, alpha ? rgb + 1 : rgb);
    }
    return alpha ? Halves<Component, rgb + 1>(source, fullWidth, size.width, size.height).afterHalvings(halvings)
                 : Halves<Component, rgb>(source, fullWidth, size.width, size.height).afterHalvings(halvings);
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
    const int halvings = halvingsOf(preview.width, preview.height);
    if (sixteenBit) {
        preview.words = firstPixels<std::uint16_t>(pixels, width, preview, halvings, alpha);
    } else {
        preview.bytes = firstPixels<std::uint8_t>(pixels, width, preview, halvings, alpha);
    }
    for (int i = 0; i < halvings; ++i) {
        preview.width = halfSide(preview.width);
        preview.height = halfSide(preview.height);
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
        half.bytes =
            Halves<std::uint8_t, rgb>(pixels.bytes.data(), pixels.width, pixels.width, pixels.height).afterHalvings(1);
    } else {
        half.words =
            Halves<std::uint16_t, rgb>(pixels.words.data(), pixels.width, pixels.width, pixels.height).afterHalvings(1);
    }
    return half;
}

} // namespace grisal::graphics
