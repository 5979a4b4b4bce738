// SPDX-License-Identifier: MIT
//
// Cost of the colour wheel's image, which is recomputed at every step of the mouse wheel and of the level slider.
#include "ui/frames/ChromaPlane.h"

#include <benchmark/benchmark.h>

namespace
{

void wheelImage(benchmark::State &state)
{
    const ChromaPlane plane = *chromaPlaneOf(static_cast<int>(state.range(0)));
    float luma = 85;
    for ([[maybe_unused]] auto _ : state) {
        luma = luma > 170 ? 85 : luma + 0.7F;
        benchmark::DoNotOptimize(wheelImageOf(plane, luma).constBits());
    }
}

BENCHMARK(wheelImage)->ArgName("mode")->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
