// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace grisal::test
{

/// An image in a test: interleaved, rows from top to bottom without padding.
template <typename T>
struct Pixels {
    int width = 0;
    int height = 0;
    int components = 3;
    std::vector<T> values;

    Pixels() = default;
    Pixels(int w, int h, int c = 3)
        : width(w), height(h), components(c),
          values(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * static_cast<std::size_t>(c))
    {
    }
    Pixels(int w, int h, int c, std::vector<T> v) : width(w), height(h), components(c), values(std::move(v)) {}

    T &at(int x, int y, int c) { return values[index(x, y, c)]; }
    T at(int x, int y, int c) const { return values[index(x, y, c)]; }

private:
    std::size_t index(int x, int y, int c) const
    {
        return (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) *
                   static_cast<std::size_t>(components) +
               static_cast<std::size_t>(c);
    }
};

using FloatPixels = Pixels<float>;
using BytePixels = Pixels<std::uint8_t>;
using Samples16Image = Pixels<std::uint16_t>;

/// An image whose components differ from their neighbours in both directions and use the whole range of T, so that
/// exchanged rows, columns, channels and tiles are detected.
template <typename T>
Pixels<T> rampPicture(int width, int height, int components = 3)
{
    Pixels<T> picture(width, height, components);
    std::uint32_t value = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < components; ++c) {
                value = static_cast<std::uint32_t>(x) * 257U + static_cast<std::uint32_t>(y) * 1031U +
                        static_cast<std::uint32_t>(c) * 20011U;
                picture.at(x, y, c) = static_cast<T>(sizeof(T) == 1 ? value / 7U : value);
            }
        }
    }
    return picture;
}

} // namespace grisal::test
