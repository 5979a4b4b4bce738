// SPDX-License-Identifier: MIT
#pragma once

#include "resources/sample-picture/Paint.h"

namespace grisal::sample
{

/// Draw over `background` four people with skin tones from light to dark, and a board with eight saturated patches
/// beside them. `width` is the right edge of the scene.
Colour withPeople(const Colour &background, const Point &point, double width);

Colour withColourBoard(const Colour &background, const Point &point, double width);

} // namespace grisal::sample
