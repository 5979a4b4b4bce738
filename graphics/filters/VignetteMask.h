// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IPositionMask.h"
#include "graphics/look/VignetteParameters.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace grisal::graphics
{

class FinalVignetteFilter;

/// The vignette of a whole image as a mask: each pixel contains its vignetteValue() for the size of the image.
///
/// The whole mask would take as much memory as the image, so pieces are drawn on demand. If the image is larger than
/// `largestSide`, the largest texture side of the OpenGL driver, or if the driver has no target for a piece, the mask
/// is computed on the CPU with the same formula, and this is logged. A drawn piece is the whole mask with its centre
/// moved, and differs from the whole by the rounding of this centre.
class VignetteMask final : public IPositionMask
{
public:
    VignetteMask(const VignetteParameters &parameters, std::uint32_t width, std::uint32_t height,
                 std::uint32_t largestSide);
    ~VignetteMask() override;

    Texture piece(const TileArea &area) override;

private:
    Texture drawn(const TileArea &area) const;
    std::vector<float> computed(const TileArea &area) const;

    VignetteParameters m_parameters;
    std::int32_t m_width;
    std::int32_t m_height;
    std::uint32_t m_largestSide;
    std::unique_ptr<FinalVignetteFilter> m_filter; ///< null if the mask is computed on the CPU
};

} // namespace grisal::graphics
