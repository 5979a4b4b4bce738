// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/filters/IPositionMask.h"
#include "graphics/filters/VignetteParameters.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace grisal::graphics
{

class FinalVignetteFilter;

/// The vignette of a whole image as a mask: for each pixel its vignetteValue() for the image's size.
///
/// It never exists as a whole, which would take as much memory as the image: pieces are drawn when they are asked for.
/// A mask that is larger than `largestSide`, the driver's largest texture side, or a piece for which the driver has no
/// target, is computed without the GPU, with the same formula, and the log reports it. A drawn piece is the whole with
/// its centre moved and differs from it by that centre's rounding.
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
    std::unique_ptr<FinalVignetteFilter> m_filter; ///< null once the driver has failed
};

} // namespace grisal::graphics
