// SPDX-License-Identifier: MIT
#include "graphics/render/TiledDocumentRenderer.h"

#include "graphics/document/Document.h"
#include "graphics/document/DocumentView.h"
#include "graphics/filters/OverlayFilter.h"
#include "graphics/gl/Textures.h"

#include <QDebug>

#include <algorithm>
#include <type_traits>

namespace grisal::graphics
{

namespace
{

bool dependsOnPosition(const IFilter *filter)
{
    return filter->makePositionMask != nullptr;
}

const FramebufferObject &runFilters(const std::vector<IFilter *> &filters, GLuint texture,
                                    const FramebufferObject &first, const FramebufferObject &second)
{
    const FramebufferObject *filled = &first;
    const FramebufferObject *next = &second;
    filters.front()->apply(texture, *filled);
    for (std::size_t i = 1; i < filters.size(); ++i) {
        if (!filters[i]->enabled) {
            continue;
        }
        filters[i]->apply(filled->texture, *next);
        std::swap(filled, next);
    }
    return *filled;
}

} // namespace

/// The filters of one render, in order, and the overlay among them with its mask; both are null if there is none.
struct TiledDocumentRenderer::Chain {
    std::vector<IFilter *> filters;
    std::unique_ptr<OverlayFilter> overlay;
    std::unique_ptr<IPositionMask> mask;
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
    Chain chain{document.queue()->filters(), nullptr, nullptr};
    replaceByOverlay(chain);

    if (m_formats.pixelType == GL_UNSIGNED_BYTE) {
        qDebug() << "(INFO) GL_RGB8 output image requested";
        renderPicture<std::uint8_t>(document, chain);
    } else if (m_formats.pixelType == GL_UNSIGNED_SHORT) {
        qDebug() << "(INFO) GL_RGB16 output image requested";
        renderPicture<std::uint16_t>(document, chain);
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

void TiledDocumentRenderer::replaceByOverlay(Chain &chain) const
{
    auto &filters = chain.filters;
    const auto enabled = std::find_if(filters.begin(), filters.end(), [](const IFilter *filter) {
        return dependsOnPosition(filter) && filter->enabled;
    });
    if (enabled == filters.end()) {
        return;
    }
    chain.mask = (*enabled)->makePositionMask(m_horizontal.padded, m_vertical.padded);
    chain.overlay = std::make_unique<OverlayFilter>();
    chain.overlay->enabled = true;
    *std::find_if(filters.begin(), filters.end(), dependsOnPosition) = chain.overlay.get();
}

template <typename T>
void TiledDocumentRenderer::renderPicture(Document &document, const Chain &chain)
{
    const std::size_t size = std::size_t{m_source.width} * m_source.height * (m_hasAlpha ? 4 : 3);
    const bool anyEnabled = countEnabled(chain.filters) > 0;
    m_pixels = std::make_unique_for_overwrite<std::byte[]>(size * sizeof(T));
    auto *pixels = reinterpret_cast<T *>(m_pixels.get());
    if (m_hasAlpha || !anyEnabled) {
        // Rendering overwrites neither a fourth component nor, if no filter is enabled, the other components.
        std::copy_n(static_cast<const T *>(m_source.pixels), size, pixels);
    }
    qDebug() << "(INFO) Copied original image to intermediate buffer";

    if (tileCount(m_horizontal) * tileCount(m_vertical) > 1) {
        qDebug() << "(INFO) Tiles requested";
    }
    qDebug() << "(INFO) Finished tile generation";
    if (anyEnabled && !renderTiles(document, chain, pixels)) {
        return;
    }

    qDebug() << "(INFO) Copy to final image";
    qDebug() << "Finishing";
    m_output = std::make_unique<ImageBuffer>(ImageBuffer{pixels, m_source.width, m_source.height, 1, 1});
    qDebug() << "Finished";
}

template <typename T>
bool TiledDocumentRenderer::renderTiles(Document &document, const Chain &chain, T *pixels) const
{
    const TileFormats &f = m_formats;
    const auto tileWidth = static_cast<std::int32_t>(m_horizontal.tile);
    const auto tileHeight = static_cast<std::int32_t>(m_vertical.tile);
    qDebug() << "(INFO) Buffers requested";
    const RenderTarget first(
        createColourFramebuffer(tileWidth, tileHeight, f.pixelFormat, f.internalFormat, f.pixelType));
    const RenderTarget second(
        createColourFramebuffer(tileWidth, tileHeight, f.pixelFormat, f.internalFormat, f.pixelType));
    if (!first.isComplete() || !second.isComplete()) {
        qWarning("The driver cannot render tiles of %d x %d pixels", tileWidth, tileHeight);
        return false;
    }
    qDebug() << "(INFO) Buffers initialized";
    // A QString, unlike the other texts, because qDebug() writes it in quotes and the log has always contained it in
    // quotes.
    qDebug() << QStringLiteral("(INFO) Finished all preprocesses");

    const std::uint32_t columns = tileCount(m_horizontal);
    const std::uint32_t rows = tileCount(m_vertical);
    qDebug() << "(INFO) Start rendering";
    qDebug() << "(INFO) Number of tiles: " << columns * rows;
    qDebug() << "(INFO) H Tiles: " << columns;
    qDebug() << "(INFO) V Tiles: " << rows;

    TileTransfer<T> transfer(m_source.width, m_source.height, m_hasAlpha ? 4 : 3, m_formats);
    for (std::uint32_t h = 0; h < columns; ++h) {
        for (std::uint32_t v = 0; v < rows; ++v) {
            if (m_progress) {
                m_progress(static_cast<int>(h * rows + v + 1), static_cast<int>(columns * rows));
            }
            qDebug() << "(INFO) Begin Rendering Loop";
            // The labels are swapped on purpose: logs have always contained the row as iX and the column as iY.
            qDebug() << "(INFO) iX: " << v;
            qDebug() << "(INFO) iY: " << h;
            const TileArea area{static_cast<std::size_t>(h) * m_horizontal.tile,
                                static_cast<std::size_t>(v) * m_vertical.tile, m_horizontal.tile, m_vertical.tile};
            renderTile(document, chain, area, transfer, pixels, first, second);
        }
    }
    return true;
}

template <typename T>
void TiledDocumentRenderer::renderTile(Document &document, const Chain &chain, const TileArea &area,
                                       TileTransfer<T> &transfer, T *pixels, const RenderTarget &first,
                                       const RenderTarget &second) const
{
    constexpr bool bytes = std::is_same_v<T, std::uint8_t>;
    const auto *source = static_cast<const T *>(m_source.pixels);
    qDebug() << "(INFO) Data: " << (source != nullptr);
    const Texture texture = transfer.upload(source, area);
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
    transfer.download(result, area, pixels);
    if (bytes) {
        qDebug() << "Rendering...";
    }
}

const FramebufferObject &TiledDocumentRenderer::runChain(const Chain &chain, const TileArea &area, GLuint texture,
                                                         const FramebufferObject &first,
                                                         const FramebufferObject &second) const
{
    const Texture mask = prepareOverlay(chain, area);
    if (countEnabled(chain.filters) == 1) {
        // The first filter runs even if another one is enabled. In this program it is the mixer, which is always
        // enabled.
        chain.filters.front()->apply(texture, second);
        return second;
    }
    return runFilters(chain.filters, texture, first, second);
}

/// The caller must keep the returned mask until the overlay has run.
Texture TiledDocumentRenderer::prepareOverlay(const Chain &chain, const TileArea &area) const
{
    if (!chain.overlay) {
        return {};
    }
    Texture mask = chain.mask->piece(area);
    chain.overlay->width = static_cast<int>(area.width);
    chain.overlay->height = static_cast<int>(area.height);
    chain.overlay->overlayTexture = mask.name();
    return mask;
}

} // namespace grisal::graphics
