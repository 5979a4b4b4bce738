// SPDX-License-Identifier: MIT
#pragma once

#include "resources/sample-picture/Paint.h"

namespace grisal::sample
{

/// Sky with clouds and the glow of a low sun, hills one behind the other, a meadow with flowers, and a bush that
/// grows in from the left. `width` is the right edge of the scene.
Colour landscapeAt(const Point &point, double width);

} // namespace grisal::sample
