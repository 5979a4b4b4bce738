// SPDX-License-Identifier: MIT
//
// Creates the noise map of the film grain: make_noise_map FILE
//
// The file contains 512 x 512 pixels of 8-bit R, G, B without a header, row by row. Each channel is white noise in
// which every value 0..255 occurs exactly 1024 times: its mean is exactly 127.5, so that grain neither lightens nor
// darkens an image. The seeds are fixed and std::mt19937 is standardised, so that the file is the same on every
// machine.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <random>
#include <utility>
#include <vector>

namespace
{

constexpr std::size_t side = 512;
constexpr std::size_t texels = side * side;
constexpr std::size_t channels = 3;

/// A random number below `bound`. std::uniform_int_distribution differs between implementations.
std::size_t below(std::mt19937 &random, std::size_t bound)
{
    return static_cast<std::size_t>((std::uint64_t{random()} * bound) >> 32U);
}

std::vector<std::uint8_t> shuffledValues(std::uint32_t seed)
{
    std::vector<std::uint8_t> values(texels);
    for (std::size_t i = 0; i < texels; ++i) {
        values[i] = static_cast<std::uint8_t>(i % 256);
    }
    std::mt19937 random(seed);
    for (std::size_t i = texels - 1; i > 0; --i) {
        std::swap(values[i], values[below(random, i + 1)]);
    }
    return values;
}

std::vector<char> makeNoiseMap()
{
    std::vector<char> map(texels * channels);
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const std::vector<std::uint8_t> values = shuffledValues(static_cast<std::uint32_t>(1839 + channel));
        for (std::size_t i = 0; i < texels; ++i) {
            map[i * channels + channel] = static_cast<char>(values[i]);
        }
    }
    return map;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_noise_map FILE\n");
        return 2;
    }
    const std::vector<char> map = makeNoiseMap();
    std::ofstream file(argv[1], std::ios::binary);
    file.write(map.data(), static_cast<std::streamsize>(map.size()));
    file.close();
    if (!file) {
        std::fprintf(stderr, "make_noise_map: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
