// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"
#include "graphics/image/ImageBuffer.h"
#include "graphics/render/IRenderer.h"
#include "graphics/render/TilePlan.h"
#include "graphics/render/TileProgress.h"
#include "graphics/render/TileTransfer.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace grisal::graphics
{

class IFilter;
class OverlayFilter;

/// Renders a picture at full resolution, tile by tile.
///
/// A filter that depends on the position in the image cannot be run tile by tile: where it is enabled, it is replaced
/// by an OverlayFilter with its mask, which has the padded size. Unlike in the preview, the first filter of the queue
/// runs once; with exactly one filter enabled it is the first of the queue that runs, whichever is enabled; with none
/// the source is the result.
class TiledDocumentRenderer : public IRenderer
{
public:
    /// `source` describes the picture, 3 components a pixel or 4 with `hasAlpha`; its pixels have to outlive the
    /// render. `horizontal` and `vertical` are the plan for its width and height.
    TiledDocumentRenderer(bool hasAlpha, TileSide horizontal, TileSide vertical, const TileFormats &formats,
                          const ImageBuffer &source);
    ~TiledDocumentRenderer() override;

    /// Who is told of each tile; nobody by default.
    void setProgress(TileProgress progress) { m_progress = std::move(progress); }

    /// Renders the document's queue over the source and returns true. The queue itself is left as it is.
    bool render(Document &document) override;

    /// The result, with size and components of the source and, with alpha, its fourth component. Null before a render,
    /// after one with an unknown pixel type, and where the driver has no targets of the tiles' size. The renderer owns
    /// it and its pixels.
    const ImageBuffer *output() const { return m_output.get(); }

private:
    struct Chain;

    void logSizes() const;
    void replaceByOverlay(Chain &chain) const;
    template <typename T>
    void renderPicture(Document &document, const Chain &chain);
    template <typename T>
    bool renderTiles(Document &document, const Chain &chain, T *pixels) const;
    template <typename T>
    void renderTile(Document &document, const Chain &chain, const TileArea &area, TileTransfer<T> &transfer, T *pixels,
                    const RenderTarget &first, const RenderTarget &second) const;
    const FramebufferObject &runChain(const Chain &chain, const TileArea &area, GLuint texture,
                                      const FramebufferObject &first, const FramebufferObject &second) const;
    Texture prepareOverlay(const Chain &chain, const TileArea &area) const;

    bool m_hasAlpha;
    TileSide m_horizontal;
    TileSide m_vertical;
    TileFormats m_formats;
    ImageBuffer m_source;
    TileProgress m_progress;
    std::unique_ptr<std::byte[]> m_pixels;
    std::unique_ptr<ImageBuffer> m_output;
};

} // namespace grisal::graphics
