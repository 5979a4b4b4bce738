// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pictures.h"

namespace grisal::test
{

/// An image with the tones of a photograph, the same for the same size: saturated and pale colours that change
/// smoothly, lights and shadows, and weak noise, so that neighbours differ. Its lowest twentieth is a grey ramp from
/// black to white without noise.
Samples16Image syntheticPhoto(int width, int height);

/// The samples converted to bytes, rounded to nearest.
BytePixels asBytes(const Samples16Image &picture);

} // namespace grisal::test
