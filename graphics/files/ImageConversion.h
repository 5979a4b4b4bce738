// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/files/LumioImage.h"
#include "graphics/image/Image.h"

namespace grisal::graphics
{

/// Returns the pixels of a file in memory at their depth, without alpha. Throws std::exception if they cannot be
/// copied.
Image imageOf(LumioImage &file);

/// Returns an image as a file in memory without metadata. On failure, problem() of the result contains the reason.
LumioImage fileOf(const Image &image);

} // namespace grisal::graphics
