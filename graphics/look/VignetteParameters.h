// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace grisal::graphics
{

/// The shape of a vignette.
struct VignetteParameters {
    struct Center {
        float x = 0; ///< percent of the width from the left
        float y = 0; ///< percent of the height from the first row, the top of the image
        float z = 0; ///< always 0

        bool operator==(const Center &) const = default;
    } center;
    float strength = 0; ///< percent; 0 is neutral
    float radius = 0;   ///< distance at which the strength is reached, in percent of the mean of width and height

    bool operator==(const VignetteParameters &) const = default;
};

/// Returns the darkening at the point (px, py), in pixels, of an image of width x height pixels. With d the distance
/// from the centre and dmax = radius * 0.01 * (width + height) / 2 it is strength * 0.01 * d / dmax, not clamped, or 0
/// if the strength is 0 or less. The first pixel's centre is (0.5, 0.5).
inline float vignetteValue(const VignetteParameters &parameters, float width, float height, float px, float py)
{
    if (!(parameters.strength > 0)) {
        return 0;
    }
    const float dx = width * 0.01F * parameters.center.x - px;
    const float dy = height * 0.01F * parameters.center.y - py;
    const float distance = std::sqrt(dx * dx + dy * dy);
    const float maxDistance = parameters.radius * 0.01F * ((width + height) * 0.5F);
    return parameters.strength * 0.01F * distance / maxDistance;
}

} // namespace grisal::graphics
