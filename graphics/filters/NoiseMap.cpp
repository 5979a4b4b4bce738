// SPDX-License-Identifier: MIT
#include "graphics/filters/NoiseMap.h"

#include "graphics/gl/Textures.h"

namespace grisal::graphics
{

namespace
{

GLuint textureOf(const std::vector<std::uint8_t> &samples, int width, int height)
{
    return createTexture(width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, samples.data());
}

} // namespace

GLuint loadRawTexture(const QString &path, int width, int height, int channels)
{
    return textureOf(readNoiseSamples(path, width, height, channels), width, height);
}

GLuint loadNoiseMap()
{
    return textureOf(noiseMapSamples(), noiseMapSide, noiseMapSide);
}

} // namespace grisal::graphics
