// SPDX-License-Identifier: MIT
#include "graphics/look/NoiseSamples.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>

namespace grisal::graphics
{

std::vector<std::uint8_t> readNoiseSamples(const QString &path, int width, int height, int channels)
{
    if (channels != noiseMapChannels) {
        qWarning("Error: RAW has not 3 channels!");
    }
    const std::size_t texels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const std::size_t size = texels * static_cast<std::size_t>(channels);
    QFile file(path);
    if (static_cast<std::size_t>(file.size()) != size) {
        qWarning("Error: Filesize doesn't equal width*height*channels!");
    }

    std::vector<std::uint8_t> samples(std::max(size, texels * noiseMapChannels));
    if (file.open(QIODevice::ReadOnly)) {
        QDataStream(&file).readRawData(reinterpret_cast<char *>(samples.data()), static_cast<int>(size));
    }
    return samples;
}

std::vector<std::uint8_t> noiseMapSamples()
{
    return readNoiseSamples(QStringLiteral(":/Icons/Icons/noiseMap_512x512x3.raw"), noiseMapSide, noiseMapSide,
                            noiseMapChannels);
}

} // namespace grisal::graphics
