// SPDX-License-Identifier: MIT
//
// Cost of the GPU's part of a job at 24 megapixels, and the baselines that it is compared with.
//
//   passes          the bare passes of a final render, of a frame of the preview
//   transfers       upload and read-back of the same bytes
//   firstFrame      upload of the preview and its first frame
#include "bench/Baselines.h"
#include "bench/ScreenWindow.h"
#include "graphics/gl/OffscreenContext.h"
#include "graphics/gl/SurfaceFormat.h"
#include "graphics/render/PreviewStage.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>

namespace
{

using namespace grisal::graphics;
using namespace grisal::bench;

constexpr unsigned width = 6000;
constexpr unsigned height = 4000;

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

unsigned depthOf(const benchmark::State &state)
{
    return static_cast<unsigned>(state.range(0));
}

void passes(benchmark::State &state)
{
    const bool bytes = depthOf(state) == 8;
    FinalPasses passes(width, height, bytes ? GL_RGB8 : GL_RGB16F, bytes ? GL_UNSIGNED_BYTE : GL_UNSIGNED_SHORT);
    for ([[maybe_unused]] auto _ : state) {
        passes.run();
    }
}

template <typename T>
void transfer(benchmark::State &state, GLenum internalFormat, GLenum type)
{
    Transfers<T> transfers(width, height, internalFormat, type);
    for ([[maybe_unused]] auto _ : state) {
        transfers.run();
    }
}

void transfers(benchmark::State &state)
{
    if (depthOf(state) == 8) {
        transfer<std::uint8_t>(state, GL_RGB8, GL_UNSIGNED_BYTE);
    } else {
        transfer<std::uint16_t>(state, GL_RGB16F, GL_UNSIGNED_SHORT);
    }
}

void enableAll(FilterSet &filters)
{
    filters.get<MixerFilter>().enabled = filters.get<CurveFilter>().enabled = filters.get<VignetteFilter>().enabled =
        true;
    filters.get<HalfToneFilter>().enabled = filters.get<GrainFilter>().enabled = true;
}

/// An image of one dark tone.
template <typename Sample>
Raster<Sample> plainImage(int columns, int rows)
{
    return Raster<Sample>(columns, rows, rgbComponents, 100);
}

void finalRender(benchmark::State &state)
{
    PreviewStage stage;
    const Image preview = plainImage<std::uint8_t>(400, 300);
    stage.load(preview, pixelFormatsFor(preview), 400, 300);
    enableAll(*stage.filters());
    stage.setGrain({QVector<float>(256, 0.5F), 1.5F});
    Image image;
    if (depthOf(state) == 16) {
        image = plainImage<std::uint16_t>(width, height);
    } else {
        image = plainImage<std::uint8_t>(width, height);
    }
    for ([[maybe_unused]] auto _ : state) {
        stage.renderFinal(image);
    }
}

constexpr int previewWidth = 4096;
constexpr int previewHeight = 2728;

/// The passes of a preview frame alone: the mixer twice, then the other filters.
void previewPasses(benchmark::State &state)
{
    const RenderTarget source(previewWidth, previewHeight, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const RenderTarget first(previewWidth, previewHeight, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const RenderTarget second(previewWidth, previewHeight, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    FilterSet filters;
    FilterParameters parameters;
    parameters.get<GrainFilter>().weights.fill(0.5F);
    filters.setParameters(parameters);
    filters.setSize(previewWidth, previewHeight);
    filters.setImageSize(previewWidth, previewHeight);
    filters.get<GrainFilter>().setSigma(1.5F);
    for ([[maybe_unused]] auto _ : state) {
        glEnable(GL_TEXTURE_2D);
        filters.get<MixerFilter>().apply(source.record().texture, first.record());
        filters.get<MixerFilter>().apply(first.record().texture, second.record());
        filters.get<CurveFilter>().apply(second.record().texture, first.record());
        filters.get<GrainFilter>().apply(first.record().texture, second.record());
        filters.get<HalfToneFilter>().apply(second.record().texture, first.record());
        filters.get<VignetteFilter>().apply(first.record().texture, second.record());
        glFinish();
    }
}

void previewFrame(benchmark::State &state)
{
    PreviewStage stage;
    const Image preview = plainImage<std::uint8_t>(previewWidth, previewHeight);
    stage.load(preview, pixelFormatsFor(preview), 1000, 700);
    enableAll(*stage.filters());
    stage.setGrain({QVector<float>(256, 0.5F), 1.5F});
    for ([[maybe_unused]] auto _ : state) {
        stage.set<MixerFilter>({{0.3F, 0.5F, 0.2F}});
        stage.preview()->render();
        glFinish();
    }
}

/// The mipmaps that a frame needs when it is shown reduced.
void previewMipmaps(benchmark::State &state)
{
    PreviewStage stage;
    const Image preview = plainImage<std::uint8_t>(previewWidth, previewHeight);
    stage.load(preview, pixelFormatsFor(preview), 1000, 700);
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        stage.preview()->render();
        glFinish();
        state.ResumeTiming();
        stage.preview()->updateMipmaps();
        glFinish();
    }
}

/// The minimum GPU cost of the first frame of an image: the upload of its preview, and the mixer twice.
void firstFrame(benchmark::State &state)
{
    const int columns = width / 2;
    const int rows = height / 2;
    const Image8 grey = plainImage<std::uint8_t>(columns, rows);
    const RenderTarget source(columns, rows, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const RenderTarget first(columns, rows, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    const RenderTarget second(columns, rows, GL_RGB, GL_RGB8, GL_UNSIGNED_BYTE);
    FilterSet filters;
    filters.setSize(columns, rows);
    for ([[maybe_unused]] auto _ : state) {
        glEnable(GL_TEXTURE_2D);
        glBindTexture(GL_TEXTURE_2D, source.record().texture);
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, columns, rows, GL_RGB, GL_UNSIGNED_BYTE, grey.samples.data());
        filters.get<MixerFilter>().apply(source.record().texture, first.record());
        filters.get<MixerFilter>().apply(first.record().texture, second.record());
        glFinish();
    }
}

void zoomStep(benchmark::State &state)
{
    ScreenWindow window;
    int step = 1;
    for ([[maybe_unused]] auto _ : state) {
        window.zoom(step);
        step = -step;
    }
}

// Creates a GL context for benchmarks without a window.
template <void (*Bench)(benchmark::State &)>
void withContext(benchmark::State &state)
{
    const OffscreenContext context;
    if (!context.isCurrent() || initialiseGlEntryPoints() != GlStart::Ready) {
        state.SkipWithError("no OpenGL 2.1 on this display");
        return;
    }
    state.SetLabel(reinterpret_cast<const char *>(glGetString(GL_RENDERER)));
    Bench(state);
}

// This number of iterations takes about a second. It is fixed because the number that Google Benchmark chooses
// distorted results when benchmarks were interleaved.
template <benchmark::IterationCount iterations>
void inMilliseconds(benchmark::internal::Benchmark *bench)
{
    bench->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(iterations);
}

BENCHMARK(withContext<passes>)->Name("passes")->Arg(8)->Arg(16)->Apply(inMilliseconds<1>);
BENCHMARK(withContext<transfers>)->Name("transfers")->Arg(8)->Arg(16)->Apply(inMilliseconds<3>);
BENCHMARK(withContext<finalRender>)->Name("finalRender")->Arg(8)->Arg(16)->Apply(inMilliseconds<1>);
BENCHMARK(withContext<previewPasses>)->Name("previewPasses")->Apply(inMilliseconds<2>);
BENCHMARK(withContext<previewFrame>)->Name("previewFrame")->Apply(inMilliseconds<2>);
BENCHMARK(withContext<previewMipmaps>)->Name("previewMipmaps")->Apply(inMilliseconds<10>);
BENCHMARK(withContext<firstFrame>)->Name("firstFrame")->Apply(inMilliseconds<10>);
BENCHMARK(zoomStep)->Apply(inMilliseconds<50>);

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(ignoreMessage);
    setDefaultSurfaceFormat();
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
