// SPDX-License-Identifier: MIT
//
// Cost of changing a control point: fitting the smoothing curve and taking its 256 samples, with the settings of the
// curve editor, and how the cost grows with the number of nodes and points.
#include "math/BSpline.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace
{

using namespace grisal::math;

constexpr double wavelength = 0.005;
constexpr int boundaryType = 2;
constexpr int editorNodes = 50;
constexpr int sampleCount = 256;

struct Points {
    std::vector<float> x;
    std::vector<float> y;
};

Points wave(int count)
{
    Points points;
    for (int i = 0; i < count; ++i) {
        const float x = static_cast<float>(i) / static_cast<float>(count - 1);
        points.x.push_back(x);
        points.y.push_back(0.5F + 0.4F * std::sin(9 * x));
    }
    return points;
}

void fit(benchmark::State &state, int pointCount, int nodes)
{
    const Points points = wave(pointCount);
    for ([[maybe_unused]] auto _ : state) {
        const BSpline<float> spline(points.x.data(), pointCount, points.y.data(), wavelength, boundaryType, nodes);
        if (!spline.ok()) {
            state.SkipWithError("the spline is not ready");
            break;
        }
        benchmark::DoNotOptimize(spline.evaluate(0.5F));
    }
}

void fitAndSample(benchmark::State &state)
{
    const int pointCount = static_cast<int>(state.range(0));
    const Points points = wave(pointCount);
    std::vector<float> samples(sampleCount);
    for ([[maybe_unused]] auto _ : state) {
        const BSpline<float> spline(points.x.data(), pointCount, points.y.data(), wavelength, boundaryType,
                                    editorNodes);
        if (!spline.ok()) {
            state.SkipWithError("the spline is not ready");
            break;
        }
        for (int i = 0; i < sampleCount; ++i) {
            samples[i] = spline.evaluate(static_cast<float>(i) / sampleCount);
        }
        benchmark::DoNotOptimize(samples.data());
        benchmark::ClobberMemory();
    }
}

void growthWithNodes(benchmark::State &state)
{
    fit(state, 10, static_cast<int>(state.range(0)));
    state.SetComplexityN(state.range(0));
}

void growthWithPoints(benchmark::State &state)
{
    fit(state, static_cast<int>(state.range(0)), editorNodes);
    state.SetComplexityN(state.range(0));
}

BENCHMARK(fitAndSample)->Arg(2)->Arg(5)->Arg(10)->Arg(30)->Arg(45)->Unit(benchmark::kMicrosecond);
BENCHMARK(growthWithNodes)
    ->RangeMultiplier(4)
    ->Range(64, 16384)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);
BENCHMARK(growthWithPoints)
    ->RangeMultiplier(4)
    ->Range(64, 16384)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

} // namespace

BENCHMARK_MAIN();
