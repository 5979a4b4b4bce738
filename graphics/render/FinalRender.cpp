// SPDX-License-Identifier: MIT
#include "graphics/render/FinalRender.h"

#include "graphics/document/Document.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/gl/GlErrors.h"
#include "graphics/render/TiledDocumentRenderer.h"

#include <QDebug>

#include <algorithm>

namespace grisal::graphics
{

namespace
{

/// Stores the sizes of the filters and restores them in its destructor.
class ScopedFilterSizes
{
public:
    explicit ScopedFilterSizes(FilterSet &filters)
        : m_filters(filters), m_width(filters.get<MixerFilter>().width), m_height(filters.get<MixerFilter>().height)
    {
    }
    ScopedFilterSizes(const ScopedFilterSizes &) = delete;
    ScopedFilterSizes &operator=(const ScopedFilterSizes &) = delete;
    ~ScopedFilterSizes()
    {
        m_filters.setSize(m_width, m_height);
        m_filters.setImageSize(m_width, m_height);
    }

private:
    FilterSet &m_filters;
    int m_width;
    int m_height;
};

void logPlan(const TileSide &horizontal, const TileSide &vertical)
{
    qDebug() << "(INFO) Calculated Width: " << horizontal.padded;
    qDebug() << "(INFO) Calculated Height: " << vertical.padded;
    qDebug() << "(INFO) Tile Width: " << horizontal.tile;
    qDebug() << "(INFO) Tile Height: " << vertical.tile;
}

template <typename Sample>
void logValueRange(const Raster<Sample> &image)
{
    unsigned smallest = 65535;
    unsigned largest = 0;
    for (std::size_t i = 0; i < image.samples.size(); i += static_cast<std::size_t>(image.components)) {
        smallest = std::min<unsigned>(smallest, image.samples[i]);
        largest = std::max<unsigned>(largest, image.samples[i]);
    }
    qDebug() << "Final vmin: " << smallest;
    qDebug() << "Final vmax: " << largest;
}

template <typename Sample>
bool renderTiles(Raster<Sample> &image, FilterSet &filters, DocumentView &view, const TileSide &horizontal,
                 const TileSide &vertical, const GlErrorScope &scope, const TileProgress &progress)
{
    const TileFormats formats =
        tileFormatsFor<Sample>(GLEW_VERSION_3_0 == GL_TRUE, GLEW_ARB_half_float_pixel == GL_TRUE);
    const ImageBuffer source{image.samples.data(), static_cast<std::uint32_t>(image.width),
                             static_cast<std::uint32_t>(image.height), 1, 1};
    DocumentFilterQueue queue;
    TiledDocumentRenderer renderer(image.components == rgbaComponents, horizontal, vertical, formats, source);
    renderer.setProgress(progress);
    Document document(0, &queue);
    document.setView(&view);
    for (IFilter *filter : filters.finalOrder()) {
        queue.add(filter);
    }

    glEnable(GL_TEXTURE_2D);
    renderer.render(document);
    glActiveTexture(GL_TEXTURE0);
    glDisable(GL_TEXTURE_2D);
    if (renderer.output() == nullptr || !scope.isClean()) {
        qWarning("OpenGL could not render the picture");
        return false;
    }
    std::copy_n(static_cast<const Sample *>(renderer.output()->pixels), image.samples.size(), image.samples.begin());
    return true;
}

template <typename Sample>
bool render(Raster<Sample> &image, const FilterParameters &parameters, FilterSet &filters, DocumentView &view,
            const TileProgress &progress)
{
    const GlErrorScope scope;
    // The grain filter leaves another unit active, but GL_TEXTURE_2D must be enabled on unit 0.
    glActiveTexture(GL_TEXTURE0);
    glEnable(GL_TEXTURE_2D);
    filters.get<GrainFilter>().setSigma(parameters.get<GrainFilter>().radius);
    qDebug() << "X: " << image.width;
    qDebug() << "Y: " << image.height;
    const TileSide horizontal = planTileSide(static_cast<std::uint32_t>(image.width));
    const TileSide vertical = planTileSide(static_cast<std::uint32_t>(image.height));
    logPlan(horizontal, vertical);

    const ScopedFilterSizes sizes(filters);
    filters.setSize(static_cast<int>(horizontal.tile), static_cast<int>(vertical.tile));
    filters.setImageSize(image.width, image.height);
    qDebug() << "HalfTone Weight: " << filters.get<HalfToneFilter>().weight;
    filters.setParameters(parameters);

    const bool rendered = renderTiles(image, filters, view, horizontal, vertical, scope, progress);
    if (!rendered) {
        filters.get<GrainFilter>().discardNoise();
    }
    logValueRange(image);
    return rendered;
}

} // namespace

bool renderFinalImage(Image &image, const FilterParameters &parameters, FilterSet &filters, DocumentView &view,
                      const TileProgress &progress)
{
    return std::visit([&](auto &raster) { return render(raster, parameters, filters, view, progress); }, image);
}

} // namespace grisal::graphics
