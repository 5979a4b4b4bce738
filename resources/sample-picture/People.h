// SPDX-License-Identifier: MIT
#pragma once

#include "resources/sample-picture/Paint.h"

namespace grisal::sample
{

/// Draws four people with skins from light to dark in front of `background`, and beside them a board with eight
/// saturated patches. `width` is the right edge of the scene.
Colour withPeople(const Colour &background, const Point &point, double width);

Colour withColourBoard(const Colour &background, const Point &point, double width);

} // namespace grisal::sample
