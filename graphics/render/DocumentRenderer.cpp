// SPDX-License-Identifier: MIT
#include "graphics/render/DocumentRenderer.h"

#include "graphics/document/Document.h"
#include "graphics/document/DocumentView.h"
#include "graphics/filters/IFilter.h"

#include <utility>

namespace grisal::graphics
{

DocumentRenderer::DocumentRenderer(std::uint32_t width, std::uint32_t height, GLenum format, GLenum internalFormat,
                                   GLenum type)
    : m_target(createColourFramebuffer(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), format,
                                       internalFormat, type))
{
}

bool DocumentRenderer::render(Document &document)
{
    document.view()->setup();
    const std::vector<IFilter *> filters = document.queue()->filters();
    if (document.bypass() || countEnabled(filters) == 0) {
        m_output = document.source();
        return true;
    }

    FramebufferObject filled = m_target.record();
    FramebufferObject next = document.view()->target();

    // The first filter reads the source even if it is disabled, and runs a second time if it is enabled. The
    // established look of the preview depends on this.
    filters.front()->apply(document.source(), filled);

    std::size_t last = 0;
    for (std::size_t i = 0; i < filters.size(); ++i) {
        if (!filters[i]->enabled) {
            continue;
        }
        last = i;
        if (!anyEnabledFrom(filters, i + 1)) {
            break;
        }
        filters[i]->apply(filled.texture, next);
        std::swap(filled, next);
    }
    filters[last]->apply(filled.texture, next);
    m_output = next.texture;
    return true;
}

} // namespace grisal::graphics
