// SPDX-License-Identifier: MIT
//
// What rendering costs, with all five filters on: one frame of the preview, and the final render in place.
#include "graphics/document/FlexibleDocumentView.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/gl/GL.h"
#include "graphics/gl/OffscreenContext.h"
#include "graphics/gl/SurfaceFormat.h"
#include "graphics/image/PreviewPixels.h"
#include "graphics/render/PreviewStage.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <cstdio>
#include <vector>

namespace
{

using namespace grisal::graphics;

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

/// A stage with a grey picture of width x height pixels and everything switched on.
std::unique_ptr<PreviewStage> stageWithAllFilters(int width, int height)
{
    const std::vector<std::uint8_t> grey(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3, 100);
    auto stage = std::make_unique<PreviewStage>();
    const PreviewPixels pixels = makePreviewPixels(grey.data(), width, height, false, false);
    stage->load(pixels, pixelFormatsFor(false, false), 1000, 1000);
    FilterSet &filters = *stage->filters();
    filters.curve.enabled = filters.vignette.enabled = filters.splitTone.enabled = filters.grain.enabled = true;
    stage->setGrain(QVector<float>(256, 0.5F), 1.5F);
    return stage;
}

void setPixelRate(benchmark::State &state, int width, int height)
{
    state.counters["pixels"] =
        benchmark::Counter(static_cast<double>(width) * height, benchmark::Counter::kIsIterationInvariantRate);
}

void previewFrame(benchmark::State &state)
{
    const auto stage = stageWithAllFilters(4096, 2730);
    for ([[maybe_unused]] auto _ : state) {
        stage->preview()->render();
        glFinish();
    }
    setPixelRate(state, 4096, 2728);
}

template <typename T>
void finalRender(benchmark::State &state)
{
    const auto width = static_cast<int>(state.range(0));
    const int height = width * 2 / 3;
    const auto stage = stageWithAllFilters(400, 300);
    std::vector<T> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3, 100);
    for ([[maybe_unused]] auto _ : state) {
        stage->renderFinal({pixels.data(), width, height, sizeof(T) == 2, false});
    }
    setPixelRate(state, width, height);
}

BENCHMARK(previewFrame)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_TEMPLATE(finalRender, std::uint8_t)->Arg(3000)->Arg(6000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_TEMPLATE(finalRender, std::uint16_t)->Arg(3000)->Arg(6000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(ignoreMessage);
    setDefaultSurfaceFormat();
    const QGuiApplication application(argc, argv);
    const OffscreenContext context;
    if (!context.isCurrent() || initialiseGlEntryPoints() != GlStart::Ready) {
        std::fprintf(stderr, "render_bench: no OpenGL 2.1 on this display\n");
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::AddCustomContext("GL renderer", reinterpret_cast<const char *>(glGetString(GL_RENDERER)));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
