// SPDX-License-Identifier: MIT
#include "graphics/render/FinalRender.h"

#include "graphics/document/Document.h"
#include "graphics/filters/FilterSet.h"
#include "graphics/gl/GlFaults.h"
#include "graphics/render/TiledDocumentRenderer.h"
#include "graphics/render/ValueRange.h"

#include <QDebug>

#include <cstring>

namespace grisal::graphics
{

namespace
{

/// Gives the filters back, at the end of its life, the sizes they had at its beginning.
class KeptSizes
{
public:
    explicit KeptSizes(FilterSet &filters)
        : m_filters(filters), m_width(filters.mixer.width), m_height(filters.mixer.height),
          m_maxWidth(filters.vignette.maxWidth), m_maxHeight(filters.vignette.maxHeight)
    {
    }
    KeptSizes(const KeptSizes &) = delete;
    KeptSizes &operator=(const KeptSizes &) = delete;
    ~KeptSizes()
    {
        m_filters.vignette.maxWidth = m_maxWidth;
        m_filters.vignette.maxHeight = m_maxHeight;
        m_filters.setSize(m_width, m_height);
    }

private:
    FilterSet &m_filters;
    int m_width;
    int m_height;
    float m_maxWidth;
    float m_maxHeight;
};

std::size_t componentCount(const FinalPicture &picture)
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

void logValueRange(const FinalPicture &picture)
{
    const std::size_t components = picture.hasAlpha ? 4 : 3;
    const std::size_t count = componentCount(picture) / components;
    const auto [smallest, largest] =
        picture.sixteenBit ? valueRange(static_cast<const std::uint16_t *>(picture.pixels), count, components)
                           : valueRange(static_cast<const std::uint8_t *>(picture.pixels), count, components);
    qDebug() << "Final vmin: " << smallest;
    qDebug() << "Final vmax: " << largest;
}

bool renderInPlace(const FinalPicture &picture, FilterSet &filters, DocumentView &view, const TileSide &horizontal,
                   const TileSide &vertical, const GlFaultWatch &watch, const TileProgress &progress)
{
    const TileFormats formats =
        tileFormatsFor(picture.sixteenBit, GLEW_VERSION_3_0 == GL_TRUE, GLEW_ARB_half_float_pixel == GL_TRUE);
    const ImageBuffer source{picture.pixels, static_cast<std::uint32_t>(picture.width),
                             static_cast<std::uint32_t>(picture.height), 1, 1};
    DocumentFilterQueue queue;
    TiledDocumentRenderer renderer(picture.hasAlpha, horizontal, vertical, formats, source);
    renderer.setProgress(progress);
    if (picture.expendable) {
        renderer.setInPlace();
    }
    Document document(0, &queue);
    document.setView(&view);
    addFinalFilters(queue, filters);

    glEnable(GL_TEXTURE_2D);
    renderer.render(document);
    glActiveTexture(GL_TEXTURE0);
    glDisable(GL_TEXTURE_2D);
    if (renderer.output() == nullptr || !watch.isClean()) {
        qWarning("OpenGL could not render the picture");
        return false;
    }
    if (!picture.expendable) {
        const std::size_t componentSize = picture.sixteenBit ? sizeof(std::uint16_t) : sizeof(std::uint8_t);
        std::memcpy(picture.pixels, renderer.output()->pixels, componentCount(picture) * componentSize);
    }
    return true;
}

} // namespace

void addFinalFilters(DocumentFilterQueue &queue, FilterSet &filters)
{
    queue.add(&filters.mixer);
    queue.add(&filters.curve);
    queue.add(&filters.splitTone);
    queue.add(&filters.grain);
    queue.add(&filters.vignette);
}

bool renderFinalPicture(const FinalPicture &picture, const FilterParameters &parameters, FilterSet &filters,
                        DocumentView &view, const TileProgress &progress)
{
    const GlFaultWatch watch;
    // The grain leaves another unit active, on which it would be enabled for nothing.
    glActiveTexture(GL_TEXTURE0);
    glEnable(GL_TEXTURE_2D);
    filters.grain.setSigma(parameters.grainRadius);
    qDebug() << "X: " << picture.width;
    qDebug() << "Y: " << picture.height;
    const TileSide horizontal = planTileSide(static_cast<std::uint32_t>(picture.width));
    const TileSide vertical = planTileSide(static_cast<std::uint32_t>(picture.height));
    logPlan(horizontal, vertical);

    const KeptSizes sizes(filters);
    filters.setSize(static_cast<int>(horizontal.tile), static_cast<int>(vertical.tile));
    filters.setPictureSize(picture.width, picture.height);
    qDebug() << "HalfTone Weight: " << filters.splitTone.weight;
    filters.setParameters(parameters);

    const bool rendered = renderInPlace(picture, filters, view, horizontal, vertical, watch, progress);
    if (!rendered) {
        filters.grain.forgetNoise();
    }
    logValueRange(picture);
    return rendered;
}

} // namespace grisal::graphics
