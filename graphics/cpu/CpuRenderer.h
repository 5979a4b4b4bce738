// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/cpu/GrainNoise.h"
#include "graphics/cpu/ToneTables.h"
#include "graphics/image/Image.h"

#include <cstdint>
#include <mutex>
#include <optional>

namespace grisal::graphics
{

/// The final render of images with one look, without OpenGL: mixer, curve, split tone, grain and vignette, with the
/// tiles, mask and roundings of renderFinalImage(). 8-bit samples are rounded after each pass; 16-bit samples are
/// processed as half floats, rounded when they are read and truncated after each pass.
///
/// The first render of a depth computes its tables, about 2 megabytes at 16 bits. A render allocates four bytes per
/// column, and several threads may render different images with the same renderer.
class CpuRenderer
{
public:
    /// The radius of the look's grain must be finite. Any other value is allowed; NaN is written as 0.
    CpuRenderer(const FilterParameters &parameters, const EnabledFilters &enabled);

    /// Renders the image in place, on the calling thread; alpha stays unchanged. If filters are enabled, the mixer runs
    /// even if it is not one of them, and if only one is, it runs alone. If none is enabled, the image is unchanged.
    void render(Image &image) const;

    /// Renders a part of an image of `imageHeight` rows in the same way: `rows` contains the rows from `firstRow` on.
    void renderRows(Image &rows, int firstRow, int imageHeight) const;

private:
    /// The tables of a depth, computed when they are needed for the first time: for a small image they take longer than
    /// its render.
    template <typename Sample>
    class Tables
    {
    public:
        const cpu::ToneTables<Sample> &get(const FilterParameters &parameters, const EnabledFilters &running) const
        {
            std::call_once(m_once, [&] { m_tables.emplace(parameters, running); });
            return *m_tables;
        }

    private:
        mutable std::once_flag m_once;
        mutable std::optional<cpu::ToneTables<Sample>> m_tables;
    };

    /// The position of rows in their image.
    struct RowRange {
        int first;
        int imageHeight;
    };

    void renderRaster(Image8 &rows, RowRange range) const;
    void renderRaster(Image16 &rows, RowRange range) const;
    template <typename Sample>
    void renderPasses(Raster<Sample> &rows, RowRange range, const cpu::ToneTables<Sample> &tables) const;

    bool m_anyEnabled;
    EnabledFilters m_running; ///< the filters that run if any is enabled
    FilterParameters m_parameters;
    Tables<std::uint8_t> m_tables8;
    Tables<std::uint16_t> m_tables16;
    std::optional<cpu::GrainNoise> m_noise; ///< empty without grain
};

} // namespace grisal::graphics
