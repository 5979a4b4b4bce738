// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/gl/GL.h"
#include "graphics/look/NoiseSamples.h"

namespace grisal::graphics
{

/// Creates an RGB texture, which the caller owns, from a file as readNoiseSamples() reads it, whatever its number of
/// channels and its size. The context must be current.
GLuint loadRawTexture(const QString &path, int width, int height, int channels);

/// Creates a texture, which the caller owns, from the noise map in the Qt resources, 512 x 512 texels. The context must
/// be current.
GLuint loadNoiseMap();

} // namespace grisal::graphics
