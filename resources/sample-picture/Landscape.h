// SPDX-License-Identifier: MIT
#pragma once

#include "resources/sample-picture/Paint.h"

namespace grisal::sample
{

/// Sky with clouds and the glow of a low sun, several rows of hills, a meadow with flowers, and a bush at the left
/// edge. `width` is the right edge of the scene.
Colour landscapeAt(const Point &point, double width);

} // namespace grisal::sample
