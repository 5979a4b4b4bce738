// SPDX-License-Identifier: MIT
#include "graphics/image/Downscale.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

constexpr std::size_t rgb = rgbComponents;

template <typename Side>
Side halfOf(Side side)
{
    return std::max<Side>(1, side / 2);
}

/// Downscales two rows of `width` pixels with `step` components each to one row of half the width.
template <std::size_t step, typename Sample>
void averageRows(const Sample *upper, const Sample *lower, std::size_t width, Sample *target)
{
    const std::size_t right = width > 1 ? step : 0;
    for (std::size_t x = 0; x < halfOf(width); ++x, upper += 2 * step, lower += 2 * step) {
        for (std::size_t c = 0; c < rgb; ++c) {
            const std::uint32_t sum = std::uint32_t{upper[c]} + upper[c + right] + lower[c] + lower[c + right];
            *target++ = static_cast<Sample>((sum + 2) / 4);
        }
    }
}

template <typename Sample>
void copyRow(const Sample *pixel, std::size_t width, int components, Sample *target)
{
    for (std::size_t x = 0; x < width; ++x, pixel += components) {
        target = std::copy_n(pixel, rgb, target);
    }
}

/// Computes an image that is downscaled repeatedly row by row, so that no intermediate image is kept in memory.
template <typename Sample>
class Downscaler
{
public:
    Downscaler(const PixelRows<Sample> &rows, std::size_t width, std::size_t height) : m_rows(rows)
    {
        m_sizes.push_back({width, height});
    }

    Raster<Sample> downscale(int times)
    {
        for (int i = 0; i < times; ++i) {
            m_sizes.push_back({halfOf(m_sizes.back().width), halfOf(m_sizes.back().height)});
        }
        const Size size = m_sizes.back();
        Raster<Sample> image(static_cast<int>(size.width), static_cast<int>(size.height));
        for (std::size_t y = 0; y < size.height; ++y) {
            makeRow(m_sizes.size() - 1, y, image.samples.data() + y * size.width * rgb);
        }
        return image;
    }

private:
    struct Size {
        std::size_t width;
        std::size_t height;
    };

    const Sample *sourceRow(std::size_t y) const { return m_rows.samples + y * m_rows.rowLength; }

    /// Computes row y of the image after the given number of downscalings.
    void makeRow(std::size_t times, std::size_t y, Sample *target) const
    {
        if (times == 0) {
            copyRow(sourceRow(y), m_sizes.front().width, m_rows.components, target);
            return;
        }
        const Size whole = m_sizes[times - 1];
        const std::size_t below = whole.height > 1 ? 2 * y + 1 : y; // a single row is used twice
        if (times == 1) {
            averageSourceRows(2 * y, below, whole.width, target);
            return;
        }
        std::vector<Sample> rows(2 * whole.width * rgb);
        Sample *lower = rows.data() + whole.width * rgb;
        makeRow(times - 1, 2 * y, rows.data());
        makeRow(times - 1, below, lower);
        averageRows<rgb>(rows.data(), lower, whole.width, target);
    }

    void averageSourceRows(std::size_t upper, std::size_t lower, std::size_t width, Sample *target) const
    {
        if (m_rows.components == rgbaComponents) {
            averageRows<rgbaComponents>(sourceRow(upper), sourceRow(lower), width, target);
        } else {
            averageRows<rgb>(sourceRow(upper), sourceRow(lower), width, target);
        }
    }

    PixelRows<Sample> m_rows;
    std::vector<Size> m_sizes;
};

} // namespace

template <typename Sample>
Raster<Sample> downscale(const PixelRows<Sample> &rows, int width, int height, int times)
{
    return Downscaler<Sample>(rows, static_cast<std::size_t>(width), static_cast<std::size_t>(height)).downscale(times);
}

template Image8 downscale(const PixelRows<std::uint8_t> &rows, int width, int height, int times);
template Image16 downscale(const PixelRows<std::uint16_t> &rows, int width, int height, int times);

} // namespace grisal::graphics
