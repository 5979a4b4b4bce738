// SPDX-License-Identifier: MIT
//
// CPU time of the final render without OpenGL, at 24 megapixels with all five filters, and for comparison of reading
// and writing the same image with GraphicsMagick: JPEG with 8 bits, TIFF with 16.
#include "bench/BenchPictures.h"
#include "graphics/cpu/CpuRenderer.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

namespace
{

using namespace grisal::graphics;
using namespace grisal::bench;

constexpr int width = 6000;
constexpr int height = 4000;

FilterParameters visibleParameters()
{
    FilterParameters parameters;
    parameters.get<GrainFilter>().weights.fill(0.5F);
    return parameters;
}

EnabledFilters allFilters()
{
    EnabledFilters enabled;
    enabled.get<CurveFilter>() = enabled.get<HalfToneFilter>() = enabled.get<GrainFilter>() =
        enabled.get<VignetteFilter>() = true;
    return enabled;
}

template <typename Sample>
constexpr int depthOf = 8 * sizeof(Sample);

template <typename Sample>
Raster<Sample> paintedRaster()
{
    Magick::Image picture = paintedPicture(width, height, depthOf<Sample>);
    Raster<Sample> raster(width, height);
    picture.write(0, 0, width, height, "RGB", depthOf<Sample> == 8 ? Magick::CharPixel : Magick::ShortPixel,
                  raster.samples.data());
    return raster;
}

template <typename Sample>
void render(benchmark::State &state)
{
    const CpuRenderer renderer(visibleParameters(), allFilters());
    const Image original = paintedRaster<Sample>();
    Image image = original;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        image = original; // into the same memory
        state.ResumeTiming();
        renderer.render(image);
    }
}

/// The tables of one set of parameters.
void prepare(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        const CpuRenderer renderer(visibleParameters(), allFilters());
        Image image8 = Image8(1, 1);
        Image image16 = Image16(1, 1);
        renderer.render(image8);
        renderer.render(image16);
    }
}

template <typename Sample>
void readAndWrite(benchmark::State &state)
{
    const QTemporaryDir directory;
    const std::string suffix = depthOf<Sample> == 8 ? ".jpg" : ".tif";
    const std::string source = directory.filePath("source").toStdString() + suffix;
    const std::string target = directory.filePath("target").toStdString() + suffix;
    Magick::Image picture = paintedPicture(width, height, depthOf<Sample>);
    picture.quality(90);
    picture.write(source);
    for ([[maybe_unused]] auto _ : state) {
        Magick::Image image;
        image.read(source);
        image.quality(90);
        image.defineValue("jpeg", "optimize-coding", "false"); // as in the program
        image.write(target);
    }
}

// The minimum of the repetitions is the least affected by other load.
void repeated(benchmark::internal::Benchmark *bench)
{
    bench->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->Repetitions(5)
        ->ComputeStatistics(
            "min", [](const std::vector<double> &times) { return *std::min_element(times.begin(), times.end()); })
        ->ReportAggregatesOnly();
}

BENCHMARK(render<std::uint8_t>)->Name("render/8")->Apply(repeated);
BENCHMARK(render<std::uint16_t>)->Name("render/16")->Apply(repeated);
BENCHMARK(prepare)->Apply(repeated);
BENCHMARK(readAndWrite<std::uint8_t>)->Name("readAndWrite/8")->Apply(repeated);
BENCHMARK(readAndWrite<std::uint16_t>)->Name("readAndWrite/16")->Apply(repeated);

} // namespace

int main(int argc, char **argv)
{
    Magick::InitializeMagick(argv[0]);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
