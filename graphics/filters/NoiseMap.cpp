// SPDX-License-Identifier: MIT
#include "graphics/filters/NoiseMap.h"

#include "graphics/gl/Textures.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>
#include <vector>

namespace grisal::graphics
{

GLuint loadRawTexture(const QString &path, int width, int height, int channels)
{
    if (channels != 3) {
        qWarning("Error: RAW has not 3 channels!");
    }
    const std::size_t texels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const std::size_t size = texels * static_cast<std::size_t>(channels);
    QFile file(path);
    if (static_cast<std::size_t>(file.size()) != size) {
        qWarning("Error: Filesize doesn't equal width*height*channels!");
    }

    // The texture reads three channels whatever `channels` is.
    std::vector<char> samples(std::max(size, texels * 3), '\0');
    if (file.open(QIODevice::ReadOnly)) {
        QDataStream(&file).readRawData(samples.data(), static_cast<int>(size));
    }
    return createTexture(width, height, GL_RGB8, GL_RGB, GL_UNSIGNED_BYTE, samples.data());
}

GLuint loadNoiseMap()
{
    return loadRawTexture(QStringLiteral(":/Icons/Icons/noiseMap_512x512x3.raw"), noiseMapSide, noiseMapSide, 3);
}

} // namespace grisal::graphics
