// SPDX-License-Identifier: MIT
#include "graphics/render/FinalRender.h"

#include "graphics/document/Document.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/gl/GlErrors.h"
#include "graphics/render/TiledDocumentRenderer.h"

#include <QDebug>

#include <algorithm>
#include <cstring>

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

std::size_t componentCount(const FinalImage &picture)
{
    return static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) *
           (picture.hasAlpha ? 4 : 3);
}

void logPlan(const TileSide &horizontal, const TileSide &vertical)
{
    qDebug() << "(INFO) Calculated Width: " << horizontal.padded;
    qDebug() << "(INFO) Calculated Height: " << vertical.padded;
    qDebug() << "(INFO) Tile Width: " << horizontal.tile;
    qDebug() << "(INFO) Tile Height: " << vertical.tile;
}

template <typename Sample>
void logValueRange(const FinalImage &picture)
{
    const auto *samples = static_cast<const Sample *>(picture.pixels);
    unsigned smallest = 65535;
    unsigned largest = 0;
    const std::size_t components = picture.hasAlpha ? 4 : 3;
    for (std::size_t i = 0; i < componentCount(picture); i += components) {
        smallest = std::min<unsigned>(smallest, samples[i]);
        largest = std::max<unsigned>(largest, samples[i]);
    }
    qDebug() << "Final vmin: " << smallest;
    qDebug() << "Final vmax: " << largest;
}

bool renderTiles(const FinalImage &picture, FilterSet &filters, DocumentView &view, const TileSide &horizontal,
                 const TileSide &vertical, const GlErrorScope &scope, const TileProgress &progress)
{
    const TileFormats formats =
        tileFormatsFor(picture.sixteenBit, GLEW_VERSION_3_0 == GL_TRUE, GLEW_ARB_half_float_pixel == GL_TRUE);
    const ImageBuffer source{picture.pixels, static_cast<std::uint32_t>(picture.width),
                             static_cast<std::uint32_t>(picture.height), 1, 1};
    DocumentFilterQueue queue;
    TiledDocumentRenderer renderer(picture.hasAlpha, horizontal, vertical, formats, source);
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
    const std::size_t sampleSize = picture.sixteenBit ? sizeof(std::uint16_t) : sizeof(std::uint8_t);
    std::memcpy(picture.pixels, renderer.output()->pixels, componentCount(picture) * sampleSize);
    return true;
}

} // namespace

bool renderFinalImage(const FinalImage &picture, const Look &look, FilterSet &filters, DocumentView &view,
                      const TileProgress &progress)
{
    const GlErrorScope scope;
    // The grain filter leaves another unit active, but GL_TEXTURE_2D must be enabled on unit 0.
    glActiveTexture(GL_TEXTURE0);
    glEnable(GL_TEXTURE_2D);
    filters.get<GrainFilter>().setSigma(look.get<GrainFilter>().radius);
    qDebug() << "X: " << picture.width;
    qDebug() << "Y: " << picture.height;
    const TileSide horizontal = planTileSide(static_cast<std::uint32_t>(picture.width));
    const TileSide vertical = planTileSide(static_cast<std::uint32_t>(picture.height));
    logPlan(horizontal, vertical);

    const ScopedFilterSizes sizes(filters);
    filters.setSize(static_cast<int>(horizontal.tile), static_cast<int>(vertical.tile));
    filters.setImageSize(picture.width, picture.height);
    qDebug() << "HalfTone Weight: " << filters.get<HalfToneFilter>().weight;
    filters.setLook(look);

    const bool rendered = renderTiles(picture, filters, view, horizontal, vertical, scope, progress);
    if (!rendered) {
        filters.get<GrainFilter>().discardNoise();
    }
    if (picture.sixteenBit) {
        logValueRange<std::uint16_t>(picture);
    } else {
        logValueRange<std::uint8_t>(picture);
    }
    return rendered;
}

} // namespace grisal::graphics
