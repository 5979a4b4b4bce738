// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IPositionMask.h"
#include "graphics/gl/Framebuffers.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace grisal::graphics
{

/// An image operation: a shader program that draws a source texture into a render target.
///
/// The context must be current when a filter is created, run and destroyed. The parameters are read at every pass. A
/// fragment reads the source texel at its own position, so `width` and `height` must be the size of the target in
/// pixels; the owner sets them before a pass.
class IFilter
{
public:
    explicit IFilter(std::string name);
    IFilter(const IFilter &) = delete;
    IFilter &operator=(const IFilter &) = delete;
    virtual ~IFilter();

    /// Draws one pass of the 2D texture `sourceTexture` into `target`.
    virtual void apply(GLuint sourceTexture, const FramebufferObject &target) = 0;

    /// Returns the class name of the filter, for logs and tests.
    std::string getName() const { return m_name; }

    /// Creates the filter's mask for an image of width x height pixels from its current parameters. Set only by a
    /// filter that depends on the position in the image: in tiles, an OverlayFilter with this mask replaces it.
    /// Otherwise empty.
    std::function<std::unique_ptr<IPositionMask>(std::uint32_t, std::uint32_t)> makePositionMask;

    bool enabled = false; ///< whether renderers treat the filter as active
    int width = 0;        ///< width of the pass in pixels
    int height = 0;       ///< height of the pass in pixels

private:
    std::string m_name;
};

/// The value of the uniform MaxPixel that filters pass to their shaders.
constexpr float maxPixel = 1.0F;

} // namespace grisal::graphics
