// SPDX-License-Identifier: MIT
#include "graphics/cpu/CpuRenderer.h"

#include "graphics/cpu/PixelRun.h"
#include "graphics/image/TilePlan.h"

#include <algorithm>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

// Compiles a function, with everything that it calls, also for processors with AVX2; the dynamic linker chooses.
// It does so before the thread sanitizer is ready, which would crash.
#if defined(__x86_64__) && defined(__gnu_linux__) && !defined(__SANITIZE_THREAD__)
#define GRISAL_WITH_AVX2_CLONE [[gnu::target_clones("avx2", "default"), gnu::flatten]]
#else
#define GRISAL_WITH_AVX2_CLONE
#endif

namespace grisal::graphics
{

namespace
{

using cpu::GrainNoise;
using cpu::PixelRun;

static_assert(
    std::is_same_v<FinalFilters, std::tuple<MixerFilter, CurveFilter, HalfToneFilter, GrainFilter, VignetteFilter>>,
    "the filters of CpuRenderer and their order must be those of the final render");

/// The filters that run if these are enabled: of a single one, the first of the chain, which is the mixer.
EnabledFilters runningFilters(EnabledFilters enabled)
{
    if (enabled.count() == 1) {
        enabled.get<CurveFilter>() = enabled.get<HalfToneFilter>() = enabled.get<GrainFilter>() =
            enabled.get<VignetteFilter>() = false;
    }
    enabled.get<MixerFilter>() = true;
    return enabled;
}

/// The texels of the noise for the columns of an image.
std::vector<int> noiseColumns(int width, const TileSide &side)
{
    std::vector<int> texels(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x) {
        texels[static_cast<std::size_t>(x)] = GrainNoise::texelFor(x % static_cast<int>(side.tile));
    }
    return texels;
}

} // namespace

CpuRenderer::CpuRenderer(const FilterParameters &parameters, const EnabledFilters &enabled)
    : m_anyEnabled(enabled.count() > 0), m_running(runningFilters(enabled)), m_parameters(parameters)
{
    if (m_running.get<GrainFilter>()) {
        m_noise.emplace(parameters.get<GrainFilter>().radius);
    }
}

template <typename Sample>
void CpuRenderer::renderPasses(Raster<Sample> &rows, RowRange range, const cpu::ToneTables<Sample> &tables) const
{
    const TileSide horizontal = planTileSide(static_cast<std::uint32_t>(rows.width));
    const TileSide vertical = planTileSide(static_cast<std::uint32_t>(range.imageHeight));
    const std::vector<int> columns = noiseColumns(rows.width, horizontal);
    const ColorRGB<float> weights = m_parameters.get<MixerFilter>().weights;
    const VignetteParameters vignette = m_parameters.get<VignetteFilter>().shape;
    const auto components = static_cast<std::size_t>(rows.components);
    const auto width = static_cast<std::size_t>(rows.width);
    PixelRun run;
    Sample *pixels = rows.samples.data();
    for (int y = range.first; y < range.first + rows.height; ++y) {
        const int noiseRow = GrainNoise::texelFor(y % static_cast<int>(vertical.tile));
        for (std::size_t x = 0; x < width; x += run.count) {
            run.count = std::min(PixelRun::capacity, width - x);
            cpu::mixAndTone(pixels, components, weights, tables, run);
            if (m_noise) {
                cpu::setNoise(m_noise->row(noiseRow), columns.data() + x, run);
                cpu::applyGrain(run.red, run);
                cpu::applyGrain(run.green, run);
                cpu::applyGrain(run.blue, run);
            }
            if (m_running.get<VignetteFilter>()) {
                cpu::setMask(vignette, static_cast<float>(horizontal.padded), static_cast<float>(vertical.padded),
                             static_cast<int>(x), y, run);
                cpu::applyMask<Sample>(run.red, run);
                cpu::applyMask<Sample>(run.green, run);
                cpu::applyMask<Sample>(run.blue, run);
            }
            cpu::write(run, pixels, components);
            pixels += run.count * components;
        }
    }
}

GRISAL_WITH_AVX2_CLONE void CpuRenderer::renderRaster(Image8 &rows, RowRange range) const
{
    renderPasses(rows, range, m_tables8.get(m_parameters, m_running));
}

GRISAL_WITH_AVX2_CLONE void CpuRenderer::renderRaster(Image16 &rows, RowRange range) const
{
    renderPasses(rows, range, m_tables16.get(m_parameters, m_running));
}

void CpuRenderer::render(Image &image) const
{
    renderRows(image, 0, heightOf(image));
}

void CpuRenderer::renderRows(Image &rows, int firstRow, int imageHeight) const
{
    if (m_anyEnabled) {
        std::visit([&](auto &raster) { renderRaster(raster, {firstRow, imageHeight}); }, rows);
    }
}

} // namespace grisal::graphics
