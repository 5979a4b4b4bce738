// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/Framebuffers.h"
#include "graphics/image/ImageBuffer.h"
#include "graphics/image/TilePlan.h"
#include "graphics/render/IRenderer.h"
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

/// Renders an image at full resolution, tile by tile.
///
/// A filter that depends on the position in the image cannot run tile by tile: if it is enabled, an OverlayFilter with
/// its mask, which has the padded size, replaces it. Unlike in the preview, the first filter of the queue runs only
/// once. If exactly one filter is enabled, the first filter of the queue runs, even if another one is enabled. If none
/// is enabled, the source is the result.
class TiledDocumentRenderer : public IRenderer
{
public:
    /// `source` describes the image, with 3 components per pixel or 4 with `hasAlpha`; its pixels must outlive the
    /// render. `horizontal` and `vertical` are the plans for its width and height.
    TiledDocumentRenderer(bool hasAlpha, TileSide horizontal, TileSide vertical, const TileFormats &formats,
                          const ImageBuffer &source);
    ~TiledDocumentRenderer() override;

    /// Sets the function that is called before each tile; none by default.
    void setProgress(TileProgress progress) { m_progress = std::move(progress); }

    /// Renders the source with the filters of the document's queue and returns true. The queue itself is not modified.
    bool render(Document &document) override;

    /// Returns the result, with the size and number of components of the source; a fourth component is that of the
    /// source. Null before a render, after a render with an unknown pixel type, and if the OpenGL driver cannot create
    /// targets of the tile size. The renderer owns the result and its pixels.
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
