// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <QString>

namespace grisal::graphics
{

constexpr int noiseMapSide = 512; ///< width and height of the noise map in texels

/// Creates an RGB texture, which the caller owns, from a headerless file of 8-bit samples: R, G, B interleaved, row
/// after row. A number of channels other than 3 and a file of the wrong size are logged as warnings, and the texture is
/// created nevertheless; samples that the file lacks are 0. The context must be current.
GLuint loadRawTexture(const QString &path, int width, int height, int channels);

/// Creates a texture, which the caller owns, from the noise map in the Qt resources, 512 x 512 texels. The context must
/// be current.
GLuint loadNoiseMap();

} // namespace grisal::graphics
