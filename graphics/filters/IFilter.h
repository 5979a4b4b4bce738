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

/// One image operation: a fragment program that draws a source texture into a render target.
///
/// A filter is made, run and destroyed with the context current. Its parameters are plain fields, read at every pass.
/// A fragment reads the source texel under itself, so `width` and `height` must be the size of the target in pixels;
/// the owner sets them before a pass.
class IFilter
{
public:
    explicit IFilter(std::string name);
    IFilter(const IFilter &) = delete;
    IFilter &operator=(const IFilter &) = delete;
    virtual ~IFilter();

    /// Draws one pass of the 2D texture `sourceTexture` into `target`.
    virtual void apply(GLuint sourceTexture, const FramebufferObject &target) = 0;

    /// The class name of the filter, for logs and tests.
    std::string getName() const { return m_name; }

    /// Makes the filter's mask for an image of width x height pixels, with its present parameters. Set by a filter that
    /// depends on the position in the image: in a tile, an overlay with this mask takes its place. Empty otherwise.
    std::function<std::unique_ptr<IPositionMask>(std::uint32_t, std::uint32_t)> makePositionMask;

    bool enabled = false; ///< whether renderers count the filter in
    int width = 0;        ///< width of the pass in pixels
    int height = 0;       ///< height of the pass in pixels

private:
    std::string m_name;
};

/// Sent as MaxPixel by the filters that know this uniform.
constexpr float maxPixel = 1.0F;

} // namespace grisal::graphics
