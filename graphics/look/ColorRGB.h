// SPDX-License-Identifier: MIT
#pragma once

#include "math/ColorRGB.h"

namespace grisal::graphics
{

using math::ColorRGB;

} // namespace grisal::graphics
