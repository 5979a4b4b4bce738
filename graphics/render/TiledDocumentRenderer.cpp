// SPDX-License-Identifier: MIT
#include "graphics/render/TiledDocumentRenderer.h"

#include "graphics/document/Document.h"
#include "graphics/document/DocumentView.h"
#include "graphics/filters/OverlayFilter.h"
#include "graphics/filters/VignetteFilter.h"
#include "graphics/gl/Textures.h"
#include "graphics/render/TilePixels.h"
#include "graphics/render/VignetteMask.h"

#include <QDebug>

#include <algorithm>
#include <type_traits>

namespace grisal::graphics
{

namespace
{

bool isVignette(const IFilter *filter)
{
    return filter->getName() == "VignetteFilter";
}

std::uint32_t largestTextureSide()
{
    GLint side = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &side);
    return static_cast<std::uint32_t>(side);
}

} // namespace

/// The filters of one render, in order, and what the overlay among them needs.
struct TiledDocumentRenderer::Chain {
    std::vector<IFilter *> filters;
    std::unique_ptr<OverlayFilter> overlay;
    std::vector<float> mask;
};

TiledDocumentRenderer::TiledDocumentRenderer(bool hasAlpha, TileSide horizontal, TileSide vertical,
                                             const TileFormats &formats, const ImageBuffer &source)
    : m_hasAlpha(hasAlpha), m_horizontal(horizontal), m_vertical(vertical), m_formats(formats), m_source(source)
{
}

TiledDocumentRenderer::~TiledDocumentRenderer() = default;

bool TiledDocumentRenderer::render(Document &document)
{
    logSizes();
    m_output.reset();
    Chain chain{document.queue()->filters(), nullptr, {}};
    replaceVignette(chain);

    if (m_formats.pixelType == GL_UNSIGNED_BYTE) {
        qDebug() << "(INFO) GL_RGB8 output image requested";
        renderPicture(document, chain, m_bytes);
    } else if (m_formats.pixelType == GL_UNSIGNED_SHORT) {
        qDebug() << "(INFO) GL_RGB16 output image requested";
        renderPicture(document, chain, m_words);
    }
    return true;
}

void TiledDocumentRenderer::logSizes() const
{
    qDebug() << "(INFO) Raw Image Width: " << m_source.width;
    qDebug() << "(INFO) Raw Image Height: " << m_source.height;
    qDebug() << "(INFO) Max Texture Width: " << m_horizontal.padded;
    qDebug() << "(INFO) Max Texture Height: " << m_vertical.padded;
    qDebug() << "(INFO) Tile Width: " << m_horizontal.tile;
    qDebug() << "(INFO) Tile Height: " << m_vertical.tile;
    qDebug() << "(INFO) Begin tiled rendering";
}

void TiledDocumentRenderer::replaceVignette(Chain &chain) const
{
    auto &filters = chain.filters;
    const auto enabled = std::find_if(filters.begin(), filters.end(),
                                      [](const IFilter *filter) { return isVignette(filter) && filter->enabled; });
    if (enabled == filters.end()) {
        return;
    }
    const auto *vignette = dynamic_cast<const VignetteFilter *>(*enabled);
    if (vignette == nullptr) {
        return;
    }
    chain.mask = makeVignetteMask(vignette->parameters, m_horizontal.padded, m_vertical.padded, largestTextureSide());
    chain.overlay = std::make_unique<OverlayFilter>();
    chain.overlay->enabled = true;
    *std::find_if(filters.begin(), filters.end(), isVignette) = chain.overlay.get();
}

template <typename T>
void TiledDocumentRenderer::renderPicture(Document &document, const Chain &chain, std::vector<T> &pixels)
{
    const std::size_t size = std::size_t{m_source.width} * m_source.height * (m_hasAlpha ? 4 : 3);
    const auto *source = static_cast<const T *>(m_source.pixels);
    // Starts as the source: a fourth component stays, and so does everything where no filter is enabled.
    pixels.assign(source, source + size);
    qDebug() << "(INFO) Copied original image to intermediate buffer";

    if (tileCount(m_horizontal) * tileCount(m_vertical) > 1) {
        qDebug() << "(INFO) Tiles requested";
    }
    qDebug() << "(INFO) Finished tile generation";
    if (countEnabled(chain.filters) > 0 && !renderTiles(document, chain, pixels)) {
        return;
    }

    qDebug() << "(INFO) Copy to final image";
    qDebug() << "Finishing";
    m_output = std::make_unique<ImageBuffer>(ImageBuffer{pixels.data(), m_source.width, m_source.height, 1, 1});
    qDebug() << "Finished";
}

template <typename T>
bool TiledDocumentRenderer::renderTiles(Document &document, const Chain &chain, std::vector<T> &pixels) const
{
    const TileFormats &f = m_formats;
    const auto tileWidth = static_cast<std::int32_t>(m_horizontal.tile);
    const auto tileHeight = static_cast<std::int32_t>(m_vertical.tile);
    qDebug() << "(INFO) Buffers requested";
    const RenderTarget first(tileWidth, tileHeight, f.pixelFormat, f.internalFormat, f.pixelType);
    const RenderTarget second(tileWidth, tileHeight, f.pixelFormat, f.internalFormat, f.pixelType);
    if (!first.isComplete() || !second.isComplete()) {
        qWarning("The driver cannot render tiles of %d x %d pixels", tileWidth, tileHeight);
        return false;
    }
    qDebug() << "(INFO) Buffers initialized";
    // A string object, unlike its neighbours: it stands in quotes in the log.
    qDebug() << QStringLiteral("(INFO) Finished all preprocesses");

    const std::uint32_t columns = tileCount(m_horizontal);
    const std::uint32_t rows = tileCount(m_vertical);
    qDebug() << "(INFO) Start rendering";
    qDebug() << "(INFO) Number of tiles: " << columns * rows;
    qDebug() << "(INFO) H Tiles: " << columns;
    qDebug() << "(INFO) V Tiles: " << rows;

    const auto *source = static_cast<const T *>(m_source.pixels);
    const std::size_t components = m_hasAlpha ? 4 : 3;
    std::vector<T> tile;
    for (std::uint32_t h = 0; h < columns; ++h) {
        for (std::uint32_t v = 0; v < rows; ++v) {
            qDebug() << "(INFO) Begin Rendering Loop";
            // The labels name the other axis; logs have always read like this.
            qDebug() << "(INFO) iX: " << v;
            qDebug() << "(INFO) iY: " << h;
            const TileArea area{static_cast<std::size_t>(h) * m_horizontal.tile,
                                static_cast<std::size_t>(v) * m_vertical.tile, m_horizontal.tile, m_vertical.tile};
            cutTile(source, m_source.width, m_source.height, components, area, tile);
            renderTile(document, chain, area, tile, first, second);
            placeTile(tile, area, pixels.data(), m_source.width, m_source.height, components);
        }
    }
    return true;
}

template <typename T>
void TiledDocumentRenderer::renderTile(Document &document, const Chain &chain, const TileArea &area,
                                       std::vector<T> &tile, const RenderTarget &first,
                                       const RenderTarget &second) const
{
    constexpr bool bytes = std::is_same_v<T, std::uint8_t>;
    const auto width = static_cast<std::int32_t>(area.width);
    const auto height = static_cast<std::int32_t>(area.height);

    qDebug() << "(INFO) Data: " << (tile.data() != nullptr);
    const Texture texture(createTexture(width, height, m_formats.internalFormat, m_formats.pixelFormat,
                                        m_formats.pixelType, tile.data()));
    qDebug() << "(INFO) Tile Texture initialized";
    document.view()->setup();

    qDebug() << "(INFO) Active Filters: " << countEnabled(chain.filters);
    qDebug() << "(INFO) Total Filters:  " << chain.filters.size();
    if (bytes) {
        qDebug() << "(INFO) Now rendering";
    }
    const FramebufferObject &result = runChain(chain, area, texture.name(), first.record(), second.record());
    if (bytes) {
        qDebug() << "(INFO) Copy Tile";
    }
    readPixels(result, width, height, bytes ? m_formats.pixelFormat : GL_RGB, m_formats.pixelType, tile.data());
    if (bytes) {
        qDebug() << "Rendering...";
    }
}

const FramebufferObject &TiledDocumentRenderer::runChain(const Chain &chain, const TileArea &area, GLuint texture,
                                                         const FramebufferObject &first,
                                                         const FramebufferObject &second) const
{
    const std::vector<IFilter *> &filters = chain.filters;
    if (countEnabled(filters) == 1) {
        // The first filter stands for the one that is enabled: the mixer always is, in this program.
        applyFilter(chain, filters.front(), area, texture, second);
        return second;
    }

    const FramebufferObject *filled = &first;
    const FramebufferObject *next = &second;
    applyFilter(chain, filters.front(), area, texture, *filled);
    for (std::size_t i = 1; i < filters.size(); ++i) {
        if (!filters[i]->enabled) {
            continue;
        }
        applyFilter(chain, filters[i], area, filled->texture, *next);
        std::swap(filled, next);
    }
    return *filled;
}

void TiledDocumentRenderer::applyFilter(const Chain &chain, IFilter *filter, const TileArea &area, GLuint texture,
                                        const FramebufferObject &target) const
{
    if (filter != chain.overlay.get()) {
        filter->apply(texture, target);
        return;
    }
    const std::vector<float> maskTile = cutMask(chain.mask, m_horizontal.padded, area);
    const Texture mask(createTexture(static_cast<std::int32_t>(area.width), static_cast<std::int32_t>(area.height),
                                     GL_R32F, GL_RED, GL_FLOAT, maskTile.data()));
    chain.overlay->width = static_cast<int>(area.width);
    chain.overlay->height = static_cast<int>(area.height);
    chain.overlay->overlayTexture = mask.name();
    chain.overlay->apply(texture, target);
}

} // namespace grisal::graphics
