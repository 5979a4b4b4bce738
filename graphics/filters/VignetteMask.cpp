// SPDX-License-Identifier: MIT
#include "graphics/filters/VignetteMask.h"

#include "graphics/filters/FinalVignetteFilter.h"
#include "graphics/gl/Framebuffers.h"
#include "graphics/gl/GlErrors.h"

#include <QDebug>

#include <utility>

namespace grisal::graphics
{

namespace
{

void logComputed(std::uint32_t largestSide)
{
    qDebug() << "(INFO) Vignette mask computed without the GPU, its largest texture side is" << largestSide;
}

} // namespace

VignetteMask::VignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                           std::uint32_t largestSide)
    : m_parameters(parameters), m_width(static_cast<std::int32_t>(width)), m_height(static_cast<std::int32_t>(height)),
      m_largestSide(largestSide)
{
    if (width > largestSide || height > largestSide) {
        logComputed(largestSide);
        return;
    }
    m_filter = std::make_unique<FinalVignetteFilter>();
    m_filter->parameters = m_parameters;
    m_filter->width = m_width;
    m_filter->height = m_height;
    m_filter->maxWidth = static_cast<float>(m_width);
    m_filter->maxHeight = static_cast<float>(m_height);
}

VignetteMask::~VignetteMask() = default;

Texture VignetteMask::piece(const TileArea &area)
{
    if (m_filter) {
        Texture texture = drawn(area);
        if (texture.name() != 0) {
            return texture;
        }
        m_filter.reset();
        logComputed(m_largestSide);
    }
    return Texture(createTexture(static_cast<std::int32_t>(area.width), static_cast<std::int32_t>(area.height), GL_R32F,
                                 GL_RED, GL_FLOAT, computed(area).data()));
}

/// Returns no texture if the OpenGL driver fails to create the target or to draw the piece.
Texture VignetteMask::drawn(const TileArea &area) const
{
    const auto width = static_cast<std::int32_t>(area.width);
    const auto height = static_cast<std::int32_t>(area.height);
    GlErrorScope scope;
    const FramebufferObject target = createColourFramebuffer(width, height, GL_RED, GL_R32F, GL_FLOAT);
    Texture texture(target.texture);
    m_filter->applyPart(static_cast<int>(area.x), static_cast<int>(area.y), width, height, target);
    glDeleteFramebuffers(1, &target.framebuffer);
    const bool good = scope.isClean();
    scope.clear();
    return good ? std::move(texture) : Texture();
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
