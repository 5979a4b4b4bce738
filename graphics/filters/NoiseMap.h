// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"

#include <QString>

namespace grisal::graphics
{

constexpr int noiseMapSide = 512; ///< width and height of the noise map in texels

/// Makes an RGB texture of a headerless file of 8-bit samples, R, G, B interleaved, row after row, for which the
/// caller is the owner. A wrong number of channels or a file of the wrong size is logged and the texture made all the
/// same; what the file lacks is black.
GLuint loadRawTexture(const QString &path, int width, int height, int channels);

/// The noise that comes with the program, 512 x 512.
GLuint loadNoiseMap();

} // namespace grisal::graphics
