// SPDX-License-Identifier: MIT
//
// CPU costs of an opened image of 24 megapixels: copying pixels from and to GraphicsMagick, the preview copy, the tone
// histogram.
#include "graphics/files/LumioImage.h"
#include "graphics/image/PreviewImage.h"
#include "graphics/image/ToneHistogram.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace
{

using namespace grisal::graphics;

constexpr int width = 6000;
constexpr int height = 4000;
constexpr std::size_t pixelCount = std::size_t{width} * height;

void copyOut(benchmark::State &state)
{
    LumioImage image(width, height, false);
    std::vector<std::uint8_t> pixels(pixelCount * 3);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(image.getPixels(pixels.data(), false, false));
    }
}

void copyIn(benchmark::State &state)
{
    LumioImage image(width, height, false);
    const std::vector<std::uint8_t> pixels(pixelCount * 3, 100);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(image.setPixels(pixels.data(), false, false));
    }
}

void previewCopy(benchmark::State &state)
{
    const Image image = Image8(width, height, rgbComponents, 100);
    for ([[maybe_unused]] auto _ : state) {
        const Image preview = makePreview(image);
        benchmark::DoNotOptimize(&preview);
    }
}

void histogram(benchmark::State &state)
{
    const Image image = Image8(width, height, rgbComponents, 100);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(toneHistogram(image).data());
    }
}

BENCHMARK(copyOut)->Unit(benchmark::kMillisecond);
BENCHMARK(copyIn)->Unit(benchmark::kMillisecond);
BENCHMARK(previewCopy)->Unit(benchmark::kMillisecond);
BENCHMARK(histogram)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
