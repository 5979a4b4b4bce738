// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace grisal::graphics::cpu
{

/// The blurred noise of the grain.
class GrainNoise
{
public:
    /// Blurs the noise map in two passes that round to bytes. The radius in pixels must be finite; 0 or less leaves the
    /// noise as it is.
    explicit GrainNoise(float radius);

    /// Returns the texel, along one side of the noise map, for the column or row p of a tile. The map is mirrored
    /// beyond its edges.
    static int texelFor(int p);

    /// Returns the noise of a row of texels, 0..255, times 2 * 0.0039: the factor of the grain's overlay.
    const float *row(int texel) const;

private:
    std::vector<float> m_factors;
};

} // namespace grisal::graphics::cpu
