// SPDX-License-Identifier: MIT
#include "graphics/render/VignetteMask.h"

#include "graphics/filters/FinalVignetteFilter.h"
#include "graphics/gl/GlFaults.h"

#include <QDebug>

namespace grisal::graphics
{

VignetteMask::VignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                           std::uint32_t largestSide)
    : m_parameters(parameters), m_width(static_cast<std::int32_t>(width)), m_height(static_cast<std::int32_t>(height))
{
    const bool fits = width <= largestSide && height <= largestSide;
    if (!fits || !draw()) {
        m_target.reset();
        qDebug() << "(INFO) Vignette mask computed without the GPU, its largest texture side is" << largestSide;
    }
}

/// False where the driver has no target of this size or does not get the mask drawn.
bool VignetteMask::draw()
{
    GlFaultWatch watch;
    m_target = std::make_unique<RenderTarget>(createColourFramebuffer(m_width, m_height, GL_RED, GL_R32F, GL_FLOAT));
    if (!m_target->isComplete()) {
        watch.forgive();
        return false;
    }
    FinalVignetteFilter filter;
    filter.parameters = m_parameters;
    filter.width = m_width;
    filter.height = m_height;
    filter.maxWidth = static_cast<float>(m_width);
    filter.maxHeight = static_cast<float>(m_height);
    filter.apply(0, m_target->record());
    const bool drawn = watch.isClean();
    watch.forgive();
    return drawn;
}

Texture VignetteMask::piece(const TileArea &area) const
{
    const auto width = static_cast<std::int32_t>(area.width);
    const auto height = static_cast<std::int32_t>(area.height);
    if (!m_target) {
        return Texture(createTexture(width, height, GL_R32F, GL_RED, GL_FLOAT, computed(area).data()));
    }
    Texture texture(createTexture(width, height, GL_R32F, GL_RED, GL_FLOAT, nullptr));
    glBindFramebuffer(GL_FRAMEBUFFER, m_target->record().framebuffer);
    glBindTexture(GL_TEXTURE_2D, texture.name());
    glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, static_cast<GLint>(area.x), static_cast<GLint>(area.y), width, height);
    glBindTexture(GL_TEXTURE_2D, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    return texture;
}

std::vector<float> VignetteMask::computed(const TileArea &area) const
{
    std::vector<float> values(area.width * area.height);
    auto value = values.begin();
    for (std::size_t y = area.y; y < area.y + area.height; ++y) {
        for (std::size_t x = area.x; x < area.x + area.width; ++x) {
            *value++ = vignetteValue(m_parameters, static_cast<float>(m_width), static_cast<float>(m_height),
                                     static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F);
        }
    }
    return values;
}

} // namespace grisal::graphics
